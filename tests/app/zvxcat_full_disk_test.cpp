#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "support/catalogue_bytes.h"
#include "tool_sandbox.h"

namespace zvx::test {
namespace {

namespace fs = std::filesystem;

size_t CountLines(const std::string& text) {
    return static_cast<size_t>(std::count(text.begin(), text.end(), '\n'));
}

// The disk fills up while the run writes its entries: the catalogue takes the whole
// entries that fitted, and the run fails.
TEST(ZvxcatFullDisk, AnAddKeepsTheEntriesWrittenAndFails) {
    ToolSandbox box;
    const std::string music = CatalogueBytes({{"Music\\", "", 10, "00000000"}}, {});
    WriteAll(box / "c.zvx", music);
    fs::create_directory(box / "in");
    std::vector<std::string> args = {"add", "c.zvx", "Music", "--on-error", "abort"};
    for (int i = 0; i < 20; ++i) {
        WriteAll(box / "in" / (std::to_string(i) + ".txt"), "x");
        args.push_back("in/" + std::to_string(i) + ".txt");
    }
    box.fileSizeLimit = music.size() + 1000;
    ToolResult full = box.run(args);
    EXPECT_EQ(full.status, 1);
    EXPECT_NE(full.err.find("ZVX - Error!!!"), std::string::npos) << full.err;
    EXPECT_NE(full.err.find("not every entry could be written"), std::string::npos);

    box.fileSizeLimit = 0;
    const std::string kept = ReadAll(box / "c.zvx");
    EXPECT_TRUE(kept.starts_with(music));
    EXPECT_TRUE(kept.ends_with("\r\n"));
    ToolResult listed = box.run({"ls", "c.zvx", "Music"});
    EXPECT_GT(CountLines(listed.out), 0u);
    EXPECT_LT(CountLines(listed.out), 20u);
    EXPECT_EQ(CountLines(listed.out), CountLines(kept) - CountLines(music));

    // A tree's new folders need the whole catalogue written once more: without room for
    // that the catalogue stays as it was.
    box.fileSizeLimit = kept.size() + 10;
    ToolResult tree =
        box.run({"add-tree", "c.zvx", "in", "--parent", "In", "--on-error", "ignore"});
    EXPECT_EQ(tree.status, 1);
    EXPECT_NE(tree.err.find("is unchanged"), std::string::npos) << tree.err;
    EXPECT_EQ(ReadAll(box / "c.zvx"), kept);
}

}  // namespace
}  // namespace zvx::test
