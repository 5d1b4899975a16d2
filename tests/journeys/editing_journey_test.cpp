// A person corrects what adding got wrong: fixes a title in the entry editor, gives a
// folder's entries one album, copies, deletes, and keeps it all through save and reopen.

#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTreeView>
#include <QTreeWidget>

#include "document/entry_editor.h"
#include "document/entry_list_model.h"
#include "document/frmDocument.h"
#include "shell/frmMain.h"
#include "support/entry_lines.h"
#include "support/journey.h"
#include "support/temp_folder.h"

namespace zvx::test {
namespace {

namespace fs = std::filesystem;

// Picks the target folder in the moving dialog and confirms.
void ChooseTarget(Journey& journey, const QString& folder) {
    journey.onWindow("moving", [folder](QWidget& dialog) {
        auto* tree = dialog.findChild<QTreeWidget*>("List1");
        const QList<QTreeWidgetItem*> found = tree->findItems(folder, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1);
        tree->setCurrentItem(found[0]);
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
}

void ShowTab(frmDocument& document, int index) {
    QTabBar* tabs = document.findChild<QTabWidget*>("Tabthing")->tabBar();
    QTest::mouseClick(tabs, Qt::LeftButton, Qt::NoModifier, tabs->tabRect(index).center());
}

// The text the list shows in a row's column of an entry field.
QString Cell(frmDocument& document, int row, int field) {
    const QAbstractItemModel* list = document.entries();
    return list->data(list->index(row, field - 1)).toString();
}

std::string Line(frmDocument& document, int row) {
    return std::string(document.entries()->lineAt(row));
}

TEST(EditingJourney, EditorLocksCopyDeleteAndTheEditsKeptThroughSaveAndReopen) {
    Journey journey;
    WriteAll(journey.appFolder() / "zvx.ini", "FIRSTSTART=no\r\n");
    const fs::path dawn = journey.userFolder() / "dawn.mp3";
    const fs::path dusk = journey.userFolder() / "dusk.mp3";
    WriteAll(dawn, "not really sound");
    WriteAll(dusk, "not really sound either");
    const fs::path shelf = journey.userFolder() / "shelf.zvx";

    journey.onWindow("Form1", [](QWidget& welcome) { Click(welcome, "Command1"); });
    journey.onMain("create a folder", [](frmMain& main) { Choose(main, "pathmnu0"); });
    NameNewFolder(journey, "Music", true);
    journey.onMain("add files", [](frmMain& main) { Choose(main, "addmnu2"); });
    journey.screen.expectFileDialog("ZVX-Explorer - Add File(s)...",
                                    {{dawn.string(), dusk.string()}, false});
    journey.onWindow("insertlist", [](QWidget& insert) {
        Click(insert, "FlatBttn1");
        Click(insert, "Command3");
    });
    journey.onMain("edit the first entry", [](frmMain& main) {
        frmDocument& document = *ActiveDocument(main);
        ClickFolder(document, "Music");
        ASSERT_EQ(RowCount(document), 2);
        ClickRow(document, 0);
        Click(main, "dexx_entry_editstart");
        EntryEditor& editor = *document.editor();
        EXPECT_EQ(editor.findChild<QLabel*>("Label17")->text(), "dawn.mp3");
        Type(editor, "Text3", "Morning");
        Click(editor, "Command6");
        EXPECT_EQ(editor.findChild<QLabel*>("Label10")->text(), "Entry 2 of 2");
        Type(editor, "Text4", "Sunrise");
        editor.findChild<QCheckBox*>("Check4")->click();
        Click(editor, "Command11");
        EXPECT_EQ(editor.findChild<QLabel*>("Label21")->text(), "(2 entries were changed)");
        ShowTab(document, 0);
        EXPECT_EQ(Cell(document, 0, 9), "Morning");
        EXPECT_EQ(Cell(document, 0, 11), "Sunrise");
        EXPECT_EQ(Cell(document, 1, 11), "Sunrise");
        Choose(main, "pathmnu0");
    });
    NameNewFolder(journey, "Archive", true);
    journey.onMain("copy both into the archive", [](frmMain& main) {
        frmDocument& document = *ActiveDocument(main);
        ClickFolder(document, "Music");
        ClickRow(document, 0);
        ClickRow(document, 1, Qt::ShiftModifier);
        Choose(main, "copymovemnu0");
    });
    ChooseTarget(journey, "Archive");
    journey.onMain("copy one into its own folder", [](frmMain& main) {
        frmDocument& document = *ActiveDocument(main);
        EXPECT_EQ(RowCount(document), 2);
        ClickRow(document, 0);
        Choose(main, "copymovemnu0");
    });
    ChooseTarget(journey, "Music");
    journey.screen.expectDuplicate("keepold");
    journey.onMain("delete one in the archive", [](frmMain& main) {
        frmDocument& document = *ActiveDocument(main);
        EXPECT_EQ(RowCount(document), 2);
        ClickFolder(document, "Archive");
        ASSERT_EQ(RowCount(document), 2);
        EXPECT_EQ(Cell(document, 0, 9), "Morning");
        // A line written by the menu road has "\" behind the folder ID.
        EXPECT_EQ(Line(document, 0)[8], '\\');
        ClickRow(document, 1);
        Choose(main, "foldermnu7");
    });
    journey.screen.expectMessage("Question", MsgAnswer::Yes,
                                 "Are you sure to delete the selected entries?");
    journey.screen.expectFileDialog("ZVX-Explorer - Save ZVX...", {{shelf.string()}, false});
    journey.onMain("save with a comment typed in the editor", [](frmMain& main) {
        frmDocument& document = *ActiveDocument(main);
        EXPECT_EQ(RowCount(document), 1);
        ClickFolder(document, "Music");
        ClickRow(document, 1);
        Choose(main, "editmnu0");
        EntryEditor& editor = *document.editor();
        EXPECT_EQ(editor.findChild<QLabel*>("Label10")->text(), "Entry 1 of 1");
        EXPECT_EQ(editor.findChild<QLabel*>("Label17")->text(), "dusk.mp3");
        Type(editor, "Text6", "saved from the editor");
        Choose(main, "mnufile3");
    });
    journey.onMain("close with another comment typed", [shelf](frmMain& main) {
        EXPECT_NE(ReadAll(shelf).find("saved from the editor"), std::string::npos);
        EntryEditor& editor = *ActiveDocument(main)->editor();
        EXPECT_EQ(editor.findChild<QLabel*>("Label10")->text(), "Entry 1 of 1");
        Type(editor, "Text10", "closed from the editor");
        Choose(main, "mnufile4");
    });
    journey.screen.expectMessage("", MsgAnswer::Yes, "\"" + shelf.string() + "\"");
    journey.onMain("reopen", [](frmMain& main) { Choose(main, "recentfile0"); });
    journey.onMain("the lines as they were left", [](frmMain& main) {
        frmDocument& document = *ActiveDocument(main);
        ClickFolder(document, "Music");
        ASSERT_EQ(RowCount(document), 2);
        EXPECT_EQ(Fields(Line(document, 0), {1, 9, 11, 13, 17}), "dawn.mp3|Morning|Sunrise|||");
        EXPECT_EQ(Fields(Line(document, 1), {1, 11, 13, 17}),
                  "dusk.mp3|Sunrise|closed from the editor|saved from the editor|");
        ClickFolder(document, "Archive");
        ASSERT_EQ(RowCount(document), 1);
        EXPECT_EQ(Fields(Line(document, 0), {1, 9, 11}), "dawn.mp3|Morning|Sunrise|");
        Choose(main, "mnufile6");
    });
    journey.screen.expectMessage("Closing ZVX...", MsgAnswer::Yes);

    EXPECT_EQ(journey.run(), 0);
    EXPECT_TRUE(journey.temporaryFiles().empty());
}

}  // namespace
}  // namespace zvx::test
