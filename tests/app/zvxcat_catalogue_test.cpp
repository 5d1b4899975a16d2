#include <gtest/gtest.h>

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

// What info prints about a catalogue of the bytes.
std::string Info(const ToolSandbox& box, const std::string& bytes) {
    WriteAll(box / "c.zvx", bytes);
    ToolResult info = box.run({"info", "c.zvx"});
    EXPECT_EQ(info.status, 0) << info.err;
    return info.out;
}

TEST(ZvxcatInfo, DescribesTheEmptyCatalogue) {
    ToolSandbox box;
    EXPECT_EQ(Info(box, kEmptyCatalogue),
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
    const std::string good = Info(box, bytes);
    EXPECT_EQ(InfoValue(good, "format version"), "7 (newer than this program reads)");
    EXPECT_EQ(InfoValue(good, "entry offset"), "25");
    EXPECT_EQ(InfoValue(good, "offset matches TOC end"), "yes");

    // The offset still says 8: the entries are counted from there, the TOC's lines too.
    bytes[4] = 8;
    const std::string stale = Info(box, bytes);
    EXPECT_EQ(InfoValue(stale, "entry offset"), "8");
    EXPECT_EQ(InfoValue(stale, "TOC end"), "25");
    EXPECT_EQ(InfoValue(stale, "offset matches TOC end"), "no");
}

TEST(ZvxcatInfo, ReadsDamagedFilesWithoutFailing) {
    ToolSandbox box;
    EXPECT_EQ(InfoValue(Info(box, ""), "format version"), "none (empty file)");
    const std::string cut = Info(box, std::string("\x01\x00", 2));
    EXPECT_EQ(InfoValue(cut, "entry offset"), "0");
    EXPECT_EQ(InfoValue(cut, "offset matches TOC end"), "no");
    std::mt19937 random(7);
    std::string noise(200'000, '\0');
    for (char& c : noise)
        c = static_cast<char>(random());
    EXPECT_EQ(InfoValue(Info(box, noise), "file length"), "200000");
}

}  // namespace
}  // namespace zvx::test
