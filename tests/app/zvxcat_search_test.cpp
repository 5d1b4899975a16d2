#include <gtest/gtest.h>

#include "support/catalogue_bytes.h"
#include "tool_sandbox.h"

namespace zvx::test {
namespace {

std::vector<std::string> Fields(std::initializer_list<std::pair<int, std::string>> values) {
    std::vector<std::string> fields(22);
    for (const auto& [field, value] : values)
        fields[field - 1] = value;
    return fields;
}

const std::string kStereo = EntryLineOf(
    "00000001", Fields({{1, "song.mp3"}, {2, "5"}, {10, "Night Owls"}, {19, "0"}, {22, "Stereo"}}));
const std::string kLive = EntryLineOf("00000002", Fields({{1, "night live.mp3"}, {10, "Owls"}}));
const std::string kOther = EntryLineOf("00000003", Fields({{1, "other.mp3"}}));
const std::string kLost = EntryLineOf("00000009", Fields({{1, "lost night.mp3"}}));

struct SearchBox {
    ToolSandbox box;
    SearchBox() {
        WriteAll(box / "c.zvx", CatalogueBytes({{"Music\\", "", 10, "00000001"},
                                                {"Music\\Live\\", "", 10, "00000002"},
                                                {"Music2\\", "", 10, "00000003"}},
                                               {kStereo, kLive, kOther, kLost}));
    }
    // The stored lines a search prints with --raw; the count must be on stderr.
    std::string raw(std::vector<std::string> args) {
        args.insert(args.begin(), {"search", "c.zvx"});
        args.push_back("--raw");
        const ToolResult result = box.run(args);
        EXPECT_EQ(result.status, 0) << result.err;
        return result.out;
    }
};

TEST(ZvxcatSearch, PrintsTheResultListsColumnsAndTheCount) {
    SearchBox s;
    const ToolResult found = s.box.run({"search", "c.zvx", "owls", "--field", "artist"});
    EXPECT_EQ(found.status, 0) << found.err;
    EXPECT_EQ(found.out,
              "song.mp3\tMusic\\\t000 000 000 005\t\t\tNo\t\t\t\t\tNight "
              "Owls\t\t\t\t\t\t\t\t\tn/a\t\t\tStereo\n"
              "night live.mp3\tMusic\\Live\\\t\t\t\tNo\t\t\t\t\tOwls\t\t\t\t\t\t\t\t\t\t\t\tn/a\n");
    EXPECT_EQ(found.err, "Found: 2 Entries\n");
    // A folder the TOC does not know.
    EXPECT_NE(s.box.run({"search", "c.zvx", "lost"}).out.find("\t<\?\?\?>\t"), std::string::npos);
}

TEST(ZvxcatSearch, KeepsTheOdditiesOfTheScan) {
    SearchBox s;
    EXPECT_EQ(s.raw({"stereo"}), "") << "the scan never reads Mode";
    EXPECT_EQ(s.raw({"stereo", "--field", "mode"}), kStereo + "\n");
    EXPECT_EQ(s.raw({"owls zzz", "--words", "any"}), "") << "a first word counts in the name only";
    EXPECT_EQ(s.raw({"zzz owls", "--words", "any"}), kStereo + "\n" + kLive + "\n");
    EXPECT_EQ(s.raw({"owls night", "--words", "all"}), "");
    EXPECT_EQ(s.raw({"night owls", "--words", "all"}), kLive + "\n");
    EXPECT_EQ(s.raw({"night", "--cmp", "Does Not Contain"}),
              kStereo + "\n" + kLive + "\n" + kOther + "\n" + kLost + "\n");
    EXPECT_EQ(s.raw({"NIGHT", "--case"}), "");
}

TEST(ZvxcatSearch, SearchesAFolderOrSubTreeAndRemovesFromAnEarlierResult) {
    SearchBox s;
    EXPECT_EQ(s.raw({"mp3", "--in", "music"}), kStereo + "\n");
    EXPECT_EQ(s.raw({"mp3", "--in", "music", "--sub", "--out", "r.zvx"}),
              kStereo + "\n" + kLive + "\n");
    EXPECT_EQ(ReadAll(s.box / "r.zvx"), CatalogueBytes({{"Music\\", "", 10, "00000001"},
                                                        {"Music\\Live\\", "", 10, "00000002"},
                                                        {"Music2\\", "", 10, "00000003"}},
                                                       {kStereo, kLive}));
    const ToolResult removed =
        s.box.run({"search", "c.zvx", "live", "--remove-from", "r.zvx", "--raw"});
    EXPECT_EQ(removed.out, kStereo + "\n");
    EXPECT_EQ(removed.err, "Found: 1 Entry\n");
}

TEST(ZvxcatSearch, OverflowsAndTheQuestionBeyond2000) {
    SearchBox s;
    std::string words;
    for (int i = 0; i < 26; ++i)
        words += "w" + std::to_string(i) + " ";
    const ToolResult fatal = s.box.run({"search", "c.zvx", words, "--words", "any"});
    EXPECT_EQ(fatal.status, 3);
    EXPECT_EQ(fatal.err, "zvxcat: The search text holds more than 25 words.\n");

    WriteAll(s.box / "big.zvx", CatalogueBytes({}, std::vector<std::string>(
                                                       2003, EntryLineOf("00000001", {"a.mp3"}))));
    const ToolResult goesOn = s.box.run({"search", "big.zvx", "a.mp3", "--raw"});
    EXPECT_NE(goesOn.err.find("the search goes on"), std::string::npos) << goesOn.err;
    EXPECT_NE(goesOn.err.find("Found: 2003 Entries"), std::string::npos);
    const ToolResult stops = s.box.run({"search", "big.zvx", "a.mp3", "--over-2000", "stop"});
    EXPECT_EQ(stops.err, "Found: 2001 Entries\n");

    EXPECT_EQ(s.box.run({"search", "c.zvx", "a", "--sub"}).status, 2);
    EXPECT_EQ(s.box.run({"search", "c.zvx", "a", "--cmp", "like"}).status, 2);
}

}  // namespace
}  // namespace zvx::test
