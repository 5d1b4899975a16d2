#include <gtest/gtest.h>

#include <map>
#include <random>

#include "support/catalogue_bytes.h"
#include "tool_sandbox.h"

namespace zvx::test {
namespace {

const std::string kEmptyCatalogue("\x01\x00\x00\x00\x08\r\n", 7);

// The value of "key: value" in the output of info, or "(missing)".
std::string InfoValue(const std::string& out, const std::string& key) {
    size_t at = out.find(key + ": ");
    if (at == std::string::npos || (at > 0 && out[at - 1] != '\n'))
        return "(missing)";
    at += key.size() + 2;
    return out.substr(at, out.find('\n', at) - at);
}

TEST(ZvxcatNew, WritesTheEmptyCatalogueAndReplacesOnlyWhenForced) {
    ToolSandbox box;
    ToolResult made = box.run({"new", "x.zvx"});
    EXPECT_EQ(made.status, 0) << made.err;
    EXPECT_EQ(ReadAll(box / "x.zvx"), kEmptyCatalogue);

    WriteAll(box / "mine.zvx", "precious");
    ToolResult refused = box.run({"new", "mine.zvx"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.err.find("already exists"), std::string::npos) << refused.err;
    EXPECT_EQ(ReadAll(box / "mine.zvx"), "precious");

    EXPECT_EQ(box.run({"new", "mine.zvx", "--force"}).status, 0);
    EXPECT_EQ(ReadAll(box / "mine.zvx"), kEmptyCatalogue);

    EXPECT_EQ(box.run({"new", "no-such-folder/y.zvx"}).status, 1);
}

TEST(ZvxcatInfo, DescribesTheEmptyCatalogue) {
    ToolSandbox box;
    WriteAll(box / "e.zvx", kEmptyCatalogue);
    ToolResult info = box.run({"info", "e.zvx"});
    EXPECT_EQ(info.status, 0) << info.err;
    EXPECT_EQ(info.out,
              "format version: 1\n"
              "entry offset: 8\n"
              "TOC end: 8\n"
              "TOC closed: yes\n"
              "offset matches TOC end: yes\n"
              "folders: 0\n"
              "entry lines: 0\n"
              "short lines: 0\n"
              "file length: 7\n");
}

TEST(ZvxcatInfo, NamesANewerFormatAndSeesAWrongOffset) {
    ToolSandbox box;
    std::string bytes = CatalogueBytes({{"a\\", "", 10, "00000000"}},
                                       {EntryLineOf("00000000", {"one.mp3"}), "short"}, 7);
    WriteAll(box / "good.zvx", bytes);
    ToolResult good = box.run({"info", "good.zvx"});
    EXPECT_EQ(good.status, 0) << good.err;
    EXPECT_EQ(InfoValue(good.out, "format version"), "7 (newer than this program reads)");
    EXPECT_EQ(InfoValue(good.out, "entry offset"), "25");
    EXPECT_EQ(InfoValue(good.out, "offset matches TOC end"), "yes");

    // The offset still says 8: the entries are counted from there, the TOC's lines too.
    bytes[4] = 8;
    WriteAll(box / "stale.zvx", bytes);
    ToolResult stale = box.run({"info", "stale.zvx"});
    EXPECT_EQ(stale.status, 0) << stale.err;
    EXPECT_EQ(InfoValue(stale.out, "entry offset"), "8");
    EXPECT_EQ(InfoValue(stale.out, "TOC end"), "25");
    EXPECT_EQ(InfoValue(stale.out, "offset matches TOC end"), "no");
}

TEST(ZvxcatInfo, ReadsDamagedFilesWithoutFailing) {
    ToolSandbox box;
    WriteAll(box / "empty.zvx", "");
    WriteAll(box / "cut.zvx", std::string("\x01\x00", 2));
    std::mt19937 random(7);
    std::string noise(200'000, '\0');
    for (char& c : noise)
        c = static_cast<char>(random());
    WriteAll(box / "noise.zvx", noise);

    std::map<std::string, std::string> out;
    for (const char* file : {"empty.zvx", "cut.zvx", "noise.zvx"}) {
        ToolResult info = box.run({"info", file});
        EXPECT_EQ(info.status, 0) << file << ": " << info.err;
        out[file] = info.out;
    }
    EXPECT_EQ(InfoValue(out["empty.zvx"], "format version"), "none (empty file)");
    EXPECT_EQ(InfoValue(out["cut.zvx"], "entry offset"), "0");
    EXPECT_EQ(InfoValue(out["cut.zvx"], "offset matches TOC end"), "no");
    EXPECT_EQ(InfoValue(out["noise.zvx"], "file length"), "200000");
}

}  // namespace
}  // namespace zvx::test
