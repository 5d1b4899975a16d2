#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>

#include "document/folderprops.h"
#include "document/frmDocument.h"
#include "document/moving.h"
#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::CatalogueBytes;
using test::EntryLineOf;

TEST(FolderWindows, TheNewFolderNameLosesLeadingBlanksAsTheyAreTyped) {
    test::TestEnvironment env;
    folderprops dialog(env.common, true, NewFolderProps(env.common, false));
    auto* name = dialog.findChild<QLineEdit*>("Text1");
    QTest::keyClicks(name, "  Fil");
    EXPECT_EQ(name->text(), "Fil");
    name->setCursorPosition(0);
    QTest::keyClicks(name, " ");
    EXPECT_EQ(name->text(), "Fil");
}

TEST(FolderWindows, TheRootTargetDisablesTheTreeOfTheMovingDialog) {
    test::TestEnvironment env;
    moving dialog(env.common, MovingMode::Folder,
                  {.tree = BuildFolderTree({MakeTocGroup("A\\", "", 10, "00000000")}),
                   .showFrame = true,
                   .subFolderTarget = false});
    auto* tree = dialog.findChild<QTreeWidget*>("List1");
    EXPECT_FALSE(tree->isEnabled());
    dialog.findChild<QRadioButton*>("Option1")->click();
    EXPECT_TRUE(tree->isEnabled());
    dialog.findChild<QRadioButton*>("Option2")->click();
    EXPECT_FALSE(tree->isEnabled());
}

// With the view buffer on, a second listing of an unchanged working copy is empty: a
// move must list its target once.
TEST(FolderWindows, AMovedFolderShowsItsTargetListedOnce) {
    test::TestEnvironment env;
    const std::filesystem::path cfn = env.folder / "Document 1.tmp";
    test::WriteAll(cfn, CatalogueBytes({{"Art\\", "", 10, "00000000"},
                                        {"Music\\", "", 10, "00000001"},
                                        {"Music\\Rock\\", "", 10, "00000002"}},
                                       {EntryLineOf("00000001", {"m.mp3"})}));
    env.common.settings.allowViewBuffering = true;
    int listings = 0;
    env.common.onPlugStart = [&](const std::string& name) { listings += name == "ZVXREFRESHL"; };
    frmDocument document(env.common);
    document.workingCopy = [&] { return cfn; };
    document.refresh_Click();
    auto* tree = document.findChild<QTreeWidget*>("List2");
    tree->setCurrentItem(tree->topLevelItem(0));  // Art

    QTimer::singleShot(0, [] {
        auto* dialog = qobject_cast<moving*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QRadioButton*>("Option1")->click();
        auto* targets = dialog->findChild<QTreeWidget*>("List1");
        targets->setCurrentItem(targets->findItems("Music", Qt::MatchExactly).at(0));
        dialog->accept();
    });
    listings = 0;
    document.movfolder_Click();
    EXPECT_EQ(listings, 1);
    ASSERT_NE(document.selectedNode(), nullptr);
    EXPECT_EQ(document.selectedNode()->fullPath, "Music");
    EXPECT_EQ(document.findChild<QLabel*>("Label1")->text(), "Folder: Music");
    EXPECT_EQ(document.findChild<QTreeView*>("ListView1")->model()->rowCount(), 1);
}

}  // namespace
}  // namespace zvx
