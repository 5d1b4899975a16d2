#include <gtest/gtest.h>

#include "store/folder_id.h"
#include "store/toc.h"
#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

std::vector<TocGroup> Groups(std::initializer_list<const char*> ids) {
    std::vector<TocGroup> groups;
    for (const char* id : ids)
        groups.push_back(MakeTocGroup("x\\", "", 10, id));
    return groups;
}

TEST(FolderId, FreeTakesTheLowestUnusedNumber) {
    EXPECT_EQ(FreeFolderID(Groups({})), "00000000");
    EXPECT_EQ(FreeFolderID(Groups({"00000000", "00000001", "00000002"})), "00000003");
    EXPECT_EQ(FreeFolderID(Groups({"00000000", "00000001", "00000002", "00000004"})), "00000003");
    EXPECT_EQ(FreeFolderID(Groups({"00000001", "00000000"})), "00000002");
    // IDs count by their numeric value, so " 1" and "1x" hold the number 1.
    EXPECT_EQ(FreeFolderID(Groups({"0", " 1x"})), "00000002");
}

TEST(FolderId, WizardsCountOnAboveTheHighestId) {
    test::TestEnvironment env;
    auto file = env.folder / "ids.zvx";
    test::WriteAll(
        file, test::CatalogueBytes({{"a\\", "", 10, "00000005"}, {"b\\", "", 10, "00000001"}}, {}));
    // A deleted folder's gap is refilled by hand, never by a wizard run.
    EXPECT_EQ(FreeFolderID(file), "00000000");
    ScanHighestFolderID(env.common, file);
    EXPECT_EQ(NextFolderID(env.common), "00000006");
    EXPECT_EQ(NextFolderID(env.common), "00000007");
    EXPECT_TRUE(env.screen.shown.empty());
}

TEST(FolderId, BeyondTheLimitItWarnsAndKeepsEightDigits) {
    test::TestEnvironment env;
    env.common.folderIdCounter = 99999999;
    EXPECT_EQ(NextFolderID(env.common), "99999999");
    EXPECT_TRUE(env.screen.shown.empty());
    EXPECT_EQ(NextFolderID(env.common), "00000000");
    ASSERT_EQ(env.screen.shown.size(), 1u);
    EXPECT_EQ(env.screen.shown[0].text, "Warning! FolderID is over the 99999999 limit!!!!");
    EXPECT_EQ(env.screen.shown[0].icon, MsgIcon::Critical);
}

}  // namespace
}  // namespace zvx
