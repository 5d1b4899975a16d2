#include <gtest/gtest.h>

#include "document/folder_dialog_rules.h"
#include "document/folder_icon_table.h"
#include "store/settings.h"
#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

// The text of the refusal, or "" when the checks pass.
std::string Refusal(const std::string& name, const std::string& description, int row = 0) {
    test::TestEnvironment env;
    if (CheckFolderProps(env.common, name, description, row))
        return "";
    EXPECT_EQ(env.screen.shown.at(0).caption, "Error");
    EXPECT_EQ(env.screen.shown.at(0).icon, MsgIcon::Critical);
    return env.screen.shown.at(0).text;
}

TEST(FolderProps, ChecksNameDescriptionAndIconInOrder) {
    EXPECT_EQ(Refusal("a\\b*", "*"), "The Character \"\\\" is not allowed in the Folder-name!");
    EXPECT_EQ(Refusal("a*", "*"), "The Character \"*\" is not allowed in the Folder-name!");
    EXPECT_EQ(Refusal("", "x*"), "The Character \"*\" is not allowed in the Folder-Description!");
    EXPECT_EQ(Refusal("", ""), "The Folder-name must have at least 1 charater!");
    EXPECT_EQ(Refusal("a", "", -1), "Please select an Icon!");
    EXPECT_EQ(Refusal("a", "c:\\music", 15), "");
    EXPECT_EQ(FolderNameAsTyped("  New "), "New ");
    EXPECT_EQ(FolderNameAsTyped("\n x\x01y\r"), "x y ");
}

TEST(FolderProps, NewFolderModeRemembersTheChoiceOfSubFolderOrRoot) {
    test::TestEnvironment env;
    FolderPropsSetup first = NewFolderProps(env.common, true);
    EXPECT_EQ(first.iconRow, 0);
    EXPECT_TRUE(first.showFrame && first.option1Enabled && first.subFolder);

    std::optional<FolderDialogResult> ok = FolderPropsOk(env.common, true, "  x", "d", 4, false);
    ASSERT_TRUE(ok);
    EXPECT_EQ(ok->name, "x");
    EXPECT_EQ(ok->icon, 4);
    EXPECT_FALSE(ok->asSubFolder);
    EXPECT_EQ(ReadSetting(env.common, "LASTFOLDERPROPMODE", "").toText(), "2");
    EXPECT_FALSE(NewFolderProps(env.common, true).subFolder);

    FolderPropsSetup empty = NewFolderProps(env.common, false);
    EXPECT_FALSE(empty.option1Enabled || empty.subFolder);
    EXPECT_FALSE(FolderPropsOk(env.common, true, "", "", 0, true));
}

TEST(FolderProps, PropertiesModeShowsTheFolderAndItsIconRow) {
    FolderNode node{"#00000007", "Rock", 19, "Loud00000007", -1, "Rock"};
    FolderPropsSetup setup = FolderPropsOf(node);
    EXPECT_EQ(setup.title, "Folder Properties");
    EXPECT_EQ(setup.description, "Loud");
    EXPECT_EQ(setup.iconRow, 15);
    EXPECT_FALSE(setup.showFrame);
    node.icon = 2;
    EXPECT_EQ(FolderPropsOf(node).iconRow, -1);

    // Every row of the icon box is an icon of the folder images.
    auto table = FolderIconTable();
    ASSERT_EQ(table.size(), 16u);
    for (const FolderIconEntry& entry : table) {
        EXPECT_GE(entry.number + 40, 41);
        EXPECT_LE(entry.number + 40, 59);
    }
    EXPECT_EQ(FolderIconRow(12), 8);
}

TEST(Moving, FolderModeHidesTheSourcesChildrenAndRemembersTheTarget) {
    test::TestEnvironment env;
    auto cfn = env.folder / "d.tmp";
    test::WriteAll(cfn, test::CatalogueBytes({{"A\\", "", 10, "00000000"},
                                              {"A\\B\\", "", 10, "00000001"},
                                              {"C\\", "", 10, "00000002"}},
                                             {}));
    std::vector<std::string> events;
    env.common.onPlugStart = [&](const std::string& name) { events.push_back(name); };
    MovingSetup setup = SetUpMoving(env.common, cfn, MovingMode::Folder, 0);
    EXPECT_EQ(events, std::vector<std::string>{"ZVXREFRESHF"});
    EXPECT_EQ(env.screen.statuses.front(), "Building Tree-View...");
    ASSERT_EQ(setup.tree.size(), 2);
    EXPECT_EQ(setup.tree.nodes[1].fullPath, "C");
    EXPECT_TRUE(setup.showFrame && setup.subFolderTarget);
    EXPECT_EQ(MovingTarget(MovingMode::Folder, setup.tree, 1, true), "C\\");
    EXPECT_EQ(MovingTarget(MovingMode::Folder, setup.tree, 1, false), "\\");
    StoreMovingChoice(env.common, false);
    EXPECT_FALSE(SetUpMoving(env.common, cfn, MovingMode::Folder, 0).subFolderTarget);

    MovingSetup entries = SetUpMoving(env.common, cfn, MovingMode::Entry, 0);
    EXPECT_EQ(entries.tree.size(), 3);
    EXPECT_FALSE(entries.showFrame);
    EXPECT_EQ(MovingTarget(MovingMode::Entry, entries.tree, 1, true), "00000001\\");
    EXPECT_EQ(MovingTarget(MovingMode::Entry, entries.tree, -1, true), "");
}

}  // namespace
}  // namespace zvx
