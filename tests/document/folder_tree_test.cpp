#include <gtest/gtest.h>

#include "document/folder_caption.h"
#include "document/folder_navigation.h"
#include "document/folder_refresh.h"
#include "document/folder_tree.h"
#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

TocGroup Record(const std::string& path, const std::string& id, const std::string& description = "",
                int icon = 10) {
    return MakeTocGroup(path, description, icon, id);
}

std::vector<std::string> Paths(const FolderTree& tree) {
    std::vector<std::string> paths;
    for (const FolderNode& node : tree.nodes)
        paths.push_back(node.fullPath);
    return paths;
}

// Records in file order; the tree needs them sorted by path.
FolderTree MusicTree() {
    return BuildFolderTree(
        {Record("Music\\Rock\\", "00000002", "Loud", 4), Record("Music\\", "00000000"),
         Record("b\\", "00000006"), Record("Music2\\", "00000001"), Record("Art\\", "00000003"),
         Record("Music\\Rock\\Hard\\", "00000004"), Record("Music\\Jazz\\", "00000005")});
}

TEST(FolderTree, FoldersFollowTheSortedListWithDescendantsBehindTheirFolder) {
    FolderTree tree = MusicTree();
    // Plain byte order: "2" and upper case letters sort before "\" and lower case.
    EXPECT_EQ(Paths(tree), (std::vector<std::string>{"Art", "Music2", "Music", "Music\\Jazz",
                                                     "Music\\Rock", "Music\\Rock\\Hard", "b"}));
    const FolderNode& rock = tree.nodes[4];
    EXPECT_EQ(rock.key, "#00000002");
    EXPECT_EQ(rock.text, "Rock");
    EXPECT_EQ(rock.icon, 4);
    EXPECT_EQ(rock.tag, "Loud00000002");
    EXPECT_EQ(rock.id(), "00000002");
    EXPECT_EQ(rock.description(), "Loud");
    EXPECT_EQ(rock.parent, 2);
    EXPECT_EQ(tree.nodes[5].parent, 4);
    EXPECT_EQ(tree.nodes[1].parent, -1);
}

TEST(FolderTree, OddRecordsFindAPlace) {
    // Low control characters sort before the backslash and still follow their folder.
    FolderTree tree = BuildFolderTree({Record("A\\\tX\\", "00000001"), Record("A\\", "00000000")});
    EXPECT_EQ(Paths(tree), (std::vector<std::string>{"A", "A\\\tX"}));
    EXPECT_EQ(tree.nodes[1].parent, 0);
    // Orphans go under the last folder added.
    tree = BuildFolderTree({Record("A\\", "00000000"), Record("A\\B\\", "00000001"),
                            Record("A\\C\\D\\", "00000002"), Record("A\\C\\D\\E\\", "00000003")});
    EXPECT_EQ(Paths(tree), (std::vector<std::string>{"A", "A\\B", "A\\B\\D", "A\\B\\D\\E"}));
    // Nothing added yet: a root folder instead of the tree control's error.
    EXPECT_EQ(Paths(BuildFolderTree({Record("X\\Y\\", "00000000")})),
              std::vector<std::string>{"Y"});
    // A second record with the same ID is left out.
    tree = BuildFolderTree({Record("A\\", "00000000"), Record("B\\", "00000000")});
    EXPECT_EQ(Paths(tree), std::vector<std::string>{"A"});
}

TEST(FolderTree, GarbledRecordsStillGiveATree) {
    std::vector<TocGroup> groups = {
        Record("Music", "1"),  Record("Music\\X\\", "2"),      Record("\\", "3"),
        Record("\\\\\\", "4"), Record("a\\b\\c\\d\\e\\", "5"), Record("a\\b\\c\\d\\", "6")};
    groups.push_back({"Q\\", "", ""});
    FolderTree tree = BuildFolderTree(groups);
    EXPECT_EQ(tree.size(), 7);
    for (int i = 0; i < tree.size(); ++i)
        EXPECT_LT(tree.nodes[i].parent, i);
    // An ID line shorter than eight characters: the key takes the end of the joined item.
    EXPECT_EQ(tree.nodes[0].key, "#usic\n2\n1");
}

TEST(FolderTree, RebuildFiresItsEventAndRunsTheProgressBar) {
    test::TestEnvironment env;
    std::vector<std::string> events;
    env.common.onPlugStart = [&](const std::string& name) { events.push_back(name); };
    test::WriteAll(
        env.folder / "m.zvx",
        test::CatalogueBytes({{"b\\", "", 10, "00000001"}, {"a\\", "", 10, "00000000"}}, {}));
    FolderTree tree = listak(env.common, env.folder / "m.zvx");
    EXPECT_EQ(Paths(tree), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(events, std::vector<std::string>{"ZVXREFRESHF"});
    EXPECT_EQ(env.screen.statuses.front(), "Refreshing Folder View...");
    EXPECT_EQ(env.screen.lastProgressMax, 3);
    EXPECT_EQ(env.screen.lastProgress, 3);

    // An empty TOC gives an empty tree, nothing selected and no folder shown.
    test::WriteAll(env.folder / "e.zvx", test::CatalogueBytes({}, {}));
    tree = listak(env.common, env.folder / "e.zvx");
    EXPECT_TRUE(tree.empty());
    EXPECT_EQ(SelectAfterRefresh(env.common, -1, tree).node, -1);
    EXPECT_EQ(folderstats(tree, -1).caption, "Folder: None");
    EXPECT_EQ(folderstats(tree, -1).tag, "");
}

TEST(FolderTree, TheSamePositionIsSelectedAgainAndExpandedOnRequest) {
    test::TestEnvironment env;
    FolderTree tree = MusicTree();
    EXPECT_EQ(SelectAfterRefresh(env.common, -1, tree).node, 0);
    EXPECT_EQ(SelectAfterRefresh(env.common, 3, tree).node, 3);
    EXPECT_EQ(SelectAfterRefresh(env.common, 40, tree).node, 6);
    env.common.ExpandAfterRefresh = true;
    EXPECT_EQ(SelectAfterRefresh(env.common, 0, FolderTree{}).node, -1);
    EXPECT_TRUE(env.common.ExpandAfterRefresh) << "an empty tree leaves the request";
    EXPECT_TRUE(SelectAfterRefresh(env.common, 2, tree).expand);
    EXPECT_FALSE(env.common.ExpandAfterRefresh);
    EXPECT_FALSE(SelectAfterRefresh(env.common, 2, tree).expand);
}

TEST(FolderTree, CaptionLookupBranchAndRemovingChildren) {
    FolderTree tree = MusicTree();
    EXPECT_EQ(folderstats(tree, 2).caption, "Folder: Music");
    EXPECT_EQ(folderstats(tree, 4).caption, "Folder: Music\\Rock (Loud)");
    EXPECT_EQ(folderstats(tree, 4).tag, "Music\\Rock");

    // Paths compare in lower case.
    EXPECT_EQ(pathextrude(tree, "music\\ROCK\\"), 4);
    EXPECT_EQ(pathextrude(tree, "music\\rock"), -1);
    EXPECT_EQ(pathextrude(tree, ""), -1);
    // The plain prefix takes the sibling Music2 as well.
    EXPECT_EQ(SelectedBranch(tree, 2), (std::vector<int>{1, 2, 3, 4, 5, 2}));
    EXPECT_TRUE(SelectedBranch(tree, -1).empty());
    EXPECT_TRUE(CollapseHidesShownFolder("Music\\Rock", "Music"));
    EXPECT_FALSE(CollapseHidesShownFolder("Music", "Music"));
    EXPECT_FALSE(CollapseHidesShownFolder("Art\\X", "Music"));

    RemoveChildren(tree, 2);
    EXPECT_EQ(Paths(tree), (std::vector<std::string>{"Art", "Music2", "Music", "b"}));
    EXPECT_EQ(tree.nodes[3].parent, -1);
}

}  // namespace
}  // namespace zvx
