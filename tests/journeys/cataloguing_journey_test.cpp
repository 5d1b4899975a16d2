// A person's cataloguing session, from the first start to Quit, and the menus and tool
// bar following the document in front.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "document/frmDocument.h"
#include "shell/frmMain.h"
#include "support/journey.h"
#include "support/temp_folder.h"

namespace zvx::test {
namespace {

namespace fs = std::filesystem;

bool Checked(frmMain& main, const char* key) {
    return main.menuEntry(key)->isChecked();
}

TEST(CataloguingJourney, FromTheFirstStartThroughFoldersFilesAndSavingToQuit) {
    Journey journey;
    const fs::path notes = journey.userFolder() / "notes.txt";
    const fs::path photo = journey.userFolder() / "photo.jpg";
    WriteAll(notes, "some notes");
    WriteAll(photo, "not really a picture");
    const fs::path shelf = journey.userFolder() / "shelf.zvx";

    journey.screen.expectMessage("Welcome!", MsgAnswer::No);
    journey.onWindow("Form1", [](QWidget& welcome) { Click(welcome, "Command1"); });
    journey.onMain("create a folder", [](frmMain& main) { Choose(main, "pathmnu0"); });
    NameNewFolder(journey, "Music", false);
    journey.onMain("add files", [](frmMain& main) { Choose(main, "addmnu2"); });
    journey.screen.expectFileDialog("ZVX-Explorer - Add File(s)...",
                                    {{notes.string(), photo.string()}, false});
    journey.onWindow("insertlist", [](QWidget& insert) {
        Click(insert, "FlatBttn1");
        Click(insert, "Command3");
    });
    journey.onMain("select the folder and an entry", [](frmMain& main) {
        frmDocument& document = *ActiveDocument(main);
        ClickFolder(document, "Music");
        for (const char* key : {"pathmnu1", "pathmnu3", "pathmnu4", "expandmnu0", "expandmnu1",
                                "expandmnu2", "expandmnu3"})
            EXPECT_TRUE(MenuEnabled(main, key)) << key;
        EXPECT_TRUE(ToolItemEnabled(main, "dfxx_folder_properties"));
        EXPECT_TRUE(ToolItemEnabled(main, "dfxx_folder_delete"));
        EXPECT_FALSE(ToolItemEnabled(main, "dexx_entry_editstart"));
        ASSERT_EQ(RowCount(document), 2);
        ClickRow(document, 0);
        EXPECT_TRUE(ToolItemEnabled(main, "dexx_entry_editstart"));
        Choose(main, "pathmnu1");
    });
    journey.onWindow("folderprops", [](QWidget& dialog) {
        Type(dialog, "Text2", "the shelf by the window");
        Click(dialog, "Command1");
    });
    journey.onMain("a second folder", [](frmMain& main) { Choose(main, "pathmnu0"); });
    NameNewFolder(journey, "Rock", true);
    journey.onMain("move it", [](frmMain& main) {
        ClickFolder(*ActiveDocument(main), "Rock");
        Choose(main, "pathmnu3");
    });
    journey.onWindow("moving", [](QWidget& dialog) {
        auto* tree = dialog.findChild<QTreeWidget*>("List1");
        const QList<QTreeWidgetItem*> music = tree->findItems("Music", Qt::MatchExactly);
        ASSERT_EQ(music.size(), 1);
        tree->setCurrentItem(music[0]);
        Click(dialog, "Option1");
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    journey.screen.expectFileDialog("ZVX-Explorer - Save ZVX...", {{shelf.string()}, false});
    journey.onMain("save as", [](frmMain& main) {
        EXPECT_EQ(FolderPaths(*ActiveDocument(main)), QStringList({"Music", "Music\\Rock"}));
        Choose(main, "mnufile3");
    });
    journey.onMain("close", [shelf](frmMain& main) {
        EXPECT_EQ(main.mdiArea()->currentSubWindow()->windowTitle().toStdString(), shelf.string());
        Choose(main, "mnufile4");
    });
    journey.onMain("reopen", [](frmMain& main) {
        EXPECT_TRUE(main.mdiArea()->subWindowList().isEmpty());
        Choose(main, "recentfile0");
    });
    journey.onMain("quit", [](frmMain& main) {
        frmDocument& document = *ActiveDocument(main);
        EXPECT_EQ(FolderPaths(document), QStringList({"Music", "Music\\Rock"}));
        ClickFolder(document, "Music");
        EXPECT_EQ(RowCount(document), 2);
        Choose(main, "mnufile6");
    });
    journey.screen.expectMessage("Closing ZVX...", MsgAnswer::Yes);

    EXPECT_EQ(journey.run(), 0);
    EXPECT_TRUE(journey.temporaryFiles().empty());
    EXPECT_TRUE(fs::exists(shelf));
}

TEST(CataloguingJourney, MenusToolBarAndViewChecksFollowTheDocumentInFront) {
    Journey journey;
    WriteAll(journey.appFolder() / "zvx.ini", "FIRSTSTART=no\r\n");
    journey.onWindow("Form1", [](QWidget& welcome) { Click(welcome, "Command1"); });
    journey.onMain("create a folder", [](frmMain& main) { Choose(main, "pathmnu0"); });
    NameNewFolder(journey, "Music", false);
    journey.onMain("a list style, and a second document", [](frmMain& main) {
        ClickFolder(*ActiveDocument(main), "Music");
        Choose(main, "viewmnu4");
        EXPECT_TRUE(Checked(main, "viewmnu4"));
        Choose(main, "mnufile0");
    });
    journey.onMain("the empty document in front", [](frmMain& main) {
        EXPECT_FALSE(MenuEnabled(main, "pathmnu1"));
        EXPECT_FALSE(ToolItemEnabled(main, "dfxx_folder_properties"));
        EXPECT_TRUE(Checked(main, "viewmnu5"));
        EXPECT_FALSE(Checked(main, "viewmnu4"));
        main.mdiArea()->activatePreviousSubWindow();
    });
    journey.onMain("the first document in front again", [](frmMain& main) {
        EXPECT_TRUE(MenuEnabled(main, "pathmnu1"));
        EXPECT_TRUE(ToolItemEnabled(main, "dfxx_folder_properties"));
        EXPECT_TRUE(Checked(main, "viewmnu4"));
        EXPECT_FALSE(Checked(main, "viewmnu5"));
        Choose(main, "mnufile6");
    });
    journey.screen.expectMessage("Closing ZVX...", MsgAnswer::Yes);
    journey.screen.expectMessage("", MsgAnswer::No, "\"Document ");
    journey.screen.expectMessage("", MsgAnswer::No, "\"Document ");
    EXPECT_EQ(journey.run(), 0);
    EXPECT_TRUE(journey.temporaryFiles().empty());
}

}  // namespace
}  // namespace zvx::test
