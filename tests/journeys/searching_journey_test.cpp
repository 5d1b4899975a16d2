// A person looks for a song: retitles an entry in the editor, finds it by the new title in
// the search window, jumps to it, and after closing the catalogue the result stays while
// its jump goes nowhere.

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>
#include <QTreeView>
#include <QTreeWidget>

#include "document/entry_editor.h"
#include "document/frmDocument.h"
#include "finding/searcher.h"
#include "shell/frmMain.h"
#include "support/catalogue_bytes.h"
#include "support/journey.h"

namespace zvx::test {
namespace {

namespace fs = std::filesystem;

searcher& SearchWindow(frmMain& main) {
    auto* window = main.findChild<searcher*>("searcher");
    EXPECT_NE(window, nullptr) << "no search window";
    return *window;
}

void ClickResult(searcher& window, int row) {
    auto* list = window.findChild<QTreeView*>("ListView1");
    const QModelIndex index = list->model()->index(row, 0);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualRect(index).center());
}

QString Counter(searcher& window) {
    return window.findChild<QLabel*>("Label1")->text();
}

TEST(SearchingJourney, AnEditFoundByTheSearchAJumpToItAndNoJumpOnceTheDocumentIsClosed) {
    Journey journey;
    WriteAll(journey.appFolder() / "zvx.ini", "FIRSTSTART=no\r\n");
    const fs::path shelf = journey.userFolder() / "shelf.zvx";
    auto song = [](const std::string& id, const std::string& name) {
        return EntryLineOf(id, {name, "5", "", "", "0", "", "", "Audio: Album"});
    };
    WriteAll(shelf, CatalogueBytes(
                        {{"Music\\", "", 10, "00000000"}, {"Music\\Rock\\", "", 10, "00000001"}},
                        {song("00000000", "dawn.mp3"), song("00000001", "noon.mp3"),
                         song("00000001", "dusk.mp3")}));

    journey.onMain("retitle an entry in the editor", [](frmMain& main) {
        frmDocument& document = *ActiveDocument(main);
        // The narrow tree is walked by the keyboard down to the sub-folder.
        ClickFolder(document, "Music");
        QTest::keyClick(document.findChild<QTreeWidget*>("List2"), Qt::Key_Down);
        ASSERT_EQ(RowCount(document), 2);
        ClickRow(document, 0);
        Click(main, "dexx_entry_editstart");
        EXPECT_EQ(document.editor()->findChild<QLabel*>("Label17")->text(), "noon.mp3");
        auto* title = document.editor()->findChild<QLineEdit*>("Text3");
        title->selectAll();
        QTest::keyClicks(title, "Sunset");
        // The edit waits in the editor: the search writes it before it copies the file.
        Choose(main, "foldermnu0");
    });
    journey.onMain("find the new title and jump to it", [](frmMain& main) {
        searcher& window = SearchWindow(main);
        EXPECT_EQ(main.mdiArea()->currentSubWindow()->widget(), &window);
        EXPECT_FALSE(MenuEnabled(main, "foldermnuTOP"));
        QTest::keyClicks(window.findChild<QLineEdit*>("Text1"), "sunset");
        Click(window, "Command1");
        ASSERT_EQ(Counter(window), "Found: 1 Entry");
        ClickResult(window, 0);
        Click(window, "FlatBttn4");
        frmDocument* document = ActiveDocument(main);
        ASSERT_NE(document, nullptr) << "the jump left the document behind";
        ASSERT_NE(document->selectedNode(), nullptr);
        EXPECT_EQ(document->selectedNode()->fullPath, "Music\\Rock");
        const QModelIndexList selected =
            document->findChild<QTreeView*>("ListView1")->selectionModel()->selectedRows();
        ASSERT_EQ(selected.size(), 1);
        EXPECT_EQ(selected[0].data().toString(), "noon.mp3");
        Choose(main, "mnufile4");
    });
    journey.screen.expectMessage("", MsgAnswer::No, "\"" + shelf.string() + "\"");
    journey.onMain("jump without the document", [](frmMain& main) {
        ASSERT_EQ(main.mdiArea()->subWindowList().size(), 1);
        searcher& window = SearchWindow(main);
        EXPECT_EQ(Counter(window), "Found: 1 Entry");
        ClickResult(window, 0);
        Click(window, "FlatBttn4");
        EXPECT_EQ(main.mdiArea()->subWindowList().size(), 1);
        EXPECT_EQ(ActiveDocument(main), nullptr);
        Choose(main, "mnufile6");
    });
    journey.screen.expectMessage("Closing ZVX...", MsgAnswer::Yes);

    EXPECT_EQ(journey.run(shelf.string()), 0);
    EXPECT_TRUE(journey.temporaryFiles().empty());
}

}  // namespace
}  // namespace zvx::test
