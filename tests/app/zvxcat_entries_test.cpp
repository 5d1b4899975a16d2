#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "support/catalogue_bytes.h"
#include "tool_sandbox.h"

namespace zvx::test {
namespace {

const std::vector<FolderSpec> kFolders = {{"Music\\", "", 10, "00000001"},
                                          {"Music\\Sub\\", "", 10, "00000002"},
                                          {"Other\\", "", 10, "00000003"}};

std::string Entry(const std::string& id, const std::string& name, const std::string& size = "1000",
                  const std::string& date = "04-07-2001") {
    return EntryLineOf(id, {name, size, "c:\\music", "DISC", "0", "My disc", date});
}

// The line as the menu's copy or move writes it into `id`: the ID followed by "\".
std::string Retargeted(const std::string& id, const std::string& line) {
    return id + "\\" + line.substr(8);
}

// Other's a.mp3 stands before Music's and differs from it only in size and date, so it is
// the duplicate a copy or move of Music's a.mp3 into Other meets.
struct Catalogue {
    Catalogue() { WriteAll(box / "c.zvx", CatalogueBytes(kFolders, lines)); }
    std::string bytes() const { return ReadAll(box / "c.zvx"); }
    std::string with(const std::vector<std::string>& entries) const {
        return CatalogueBytes(kFolders, entries);
    }

    ToolSandbox box;
    const std::string otherA = Entry("00000003", "a.mp3", "999", "01-01-2000");
    const std::string a = Entry("00000001", "a.mp3");
    const std::string b = Entry("00000001", "b.mp3");
    const std::string subC = Entry("00000002", "c.mp3");
    const std::vector<std::string> lines = {otherA, a, b, subC};
};

TEST(ZvxcatEntries, CopyAndMoveWriteTheTargetIdWithItsBackslash) {
    Catalogue c;
    ToolResult copied = c.box.run({"cp", "c.zvx", "Music", "other", "--on-duplicate", "keep-all"});
    EXPECT_EQ(copied.status, 0) << copied.err;
    EXPECT_EQ(copied.err,
              "zvxcat: copied 1 of 2 selected entries; the others were duplicates "
              "of entries in the target and were not copied\n");
    const std::string copyOfB = Retargeted("00000003", c.b);
    EXPECT_EQ(c.bytes(), c.with({c.otherA, c.a, c.b, copyOfB, c.subC}));

    ToolResult moved = c.box.run({"mv", "c.zvx", "Music", "Other", "--sub", "--name", "c.mp3"});
    EXPECT_EQ(moved.status, 0) << moved.err;
    EXPECT_EQ(moved.err, "zvxcat: moved 1 of 1 selected entries\n");
    EXPECT_EQ(c.bytes(), c.with({c.otherA, c.a, c.b, copyOfB, Retargeted("00000003", c.subC)}));
}

TEST(ZvxcatEntries, ADuplicateAnsweredKeepOldLeavesTheTargetsEntry) {
    Catalogue c;
    ToolResult own = c.box.run(
        {"cp", "c.zvx", "Music", "Music", "--name", "a.mp3", "--on-duplicate", "keep-old"});
    EXPECT_EQ(own.status, 0) << own.err;
    EXPECT_EQ(c.bytes(), c.with(c.lines)) << "the copy into its own folder is its duplicate";

    ToolResult moved = c.box.run(
        {"mv", "c.zvx", "Music", "Other", "--name", "a.mp3", "--on-duplicate", "keep-old"});
    EXPECT_EQ(moved.err,
              "zvxcat: moved 0 of 1 selected entries; the others were duplicates of "
              "entries in the target, which stay in their place\n");
    EXPECT_EQ(c.bytes(), c.with({c.otherA, c.b, c.subC}));

    Catalogue over;
    over.box.run(
        {"cp", "c.zvx", "Music", "Music", "--name", "a.mp3", "--on-duplicate", "overwrite"});
    EXPECT_EQ(over.bytes(),
              over.with({over.otherA, Retargeted("00000001", over.a), over.b, over.subC}));
}

TEST(ZvxcatEntries, RmDeletesOnlyWhenTheQuestionIsAnsweredYes) {
    Catalogue c;
    ToolResult asked = c.box.run({"rm", "c.zvx", "Music"});
    EXPECT_EQ(asked.status, 1);
    EXPECT_NE(asked.err.find("Are you sure to delete the selected entries?"), std::string::npos);
    EXPECT_EQ(c.bytes(), c.with(c.lines));

    ToolResult deleted =
        c.box.run({"rm", "c.zvx", "music", "--sub", "--name", "c.mp3", "--name", "b.mp3", "--yes"});
    EXPECT_EQ(deleted.status, 0) << deleted.err;
    EXPECT_EQ(deleted.err, "zvxcat: deleted 2 entries\n");
    EXPECT_EQ(c.bytes(), c.with({c.otherA, c.a}));
}

TEST(ZvxcatEntries, NothingSelectedOrNothingToWorkOnLeavesTheFile) {
    Catalogue c;
    const std::filesystem::path file = c.box / "c.zvx";
    const auto old = std::filesystem::file_time_type::clock::now() - std::chrono::hours(48);
    std::filesystem::last_write_time(file, old);
    for (const char* command : {"cp", "mv"}) {
        ToolResult none = c.box.run({command, "c.zvx", "Music", "Other", "--name", "x.mp3"});
        EXPECT_EQ(none.status, 0) << command;
        EXPECT_NE(none.err.find("no entry selected"), std::string::npos) << none.err;
    }
    EXPECT_EQ(c.box.run({"rm", "c.zvx", "Music/Sub", "--name", "a.mp3"}).status, 0);
    EXPECT_EQ(c.bytes(), c.with(c.lines));
    EXPECT_EQ(std::filesystem::last_write_time(file), old);

    EXPECT_EQ(c.box.run({"cp", "c.zvx", "Jazz", "Other"}).status, 1);
    EXPECT_EQ(c.box.run({"mv", "c.zvx", "Music", "Jazz"}).status, 1);
    EXPECT_EQ(c.box.run({"rm", "c.zvx", "Jazz", "--yes"}).status, 1);
    EXPECT_EQ(c.box.run({"cp", "c.zvx", "Music"}).status, 2);
    EXPECT_EQ(c.box.run({"mv", "c.zvx", "Music", "Other", "--on-duplicate", "maybe"}).status, 2);
    EXPECT_EQ(c.box.run({"rm", "c.zvx", "Music", "Other"}).status, 2);
    EXPECT_EQ(c.bytes(), c.with(c.lines));
}

}  // namespace
}  // namespace zvx::test
