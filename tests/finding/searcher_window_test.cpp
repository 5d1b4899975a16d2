// The search window over a real main window: the counter, the removal, the jump into the
// document, a closed document, and the menus while the window is in front.

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeView>
#include <QTreeWidget>

#include "document/entry_list_model.h"
#include "document/frmDocument.h"
#include "finding/search_run.h"
#include "finding/searcher.h"
#include "shell/main_window_fixture.h"
#include "support/catalogue_bytes.h"

namespace zvx {
namespace {

using test::EntryLineOf;

class SearcherWindowTest : public test::MainWindowTest {
  protected:
    frmDocument* open() {
        const auto file = env.folder / "music.zvx";
        test::WriteAll(file, test::CatalogueBytes({{"Music\\", "", 10, "00000000"},
                                                   {"Music\\Rock\\", "", 4, "00000001"},
                                                   {"Photos\\", "", 11, "00000002"}},
                                                  {EntryLineOf("00000000", {"a.mp3", "5"}),
                                                   EntryLineOf("00000001", {"b.mp3", "7"}),
                                                   EntryLineOf("00000001", {"rock.mp3", "9"}),
                                                   EntryLineOf("00000009", {"lost.mp3"})}));
        env.common.pendingDocument = file.string();
        main->ZVXCoreCalls("document_open");
        return dynamic_cast<frmDocument*>(documents().at(0)->widget());
    }
    // document_find on the active document: the search window in front.
    searcher& find() {
        main->ZVXCoreCalls("document_find");
        auto* window = qobject_cast<searcher*>(main->mdiArea()->currentSubWindow()->widget());
        EXPECT_NE(window, nullptr);
        return *window;
    }
    void search(searcher& window, const QString& text) {
        window.findChild<QLineEdit*>("Text1")->setText(text);
        window.findChild<QPushButton*>("Command1")->click();
    }
    static QTreeView* List(QWidget& window) { return window.findChild<QTreeView*>("ListView1"); }
    static QString Cell(QWidget& window, int row, int column) {
        return List(window)->model()->index(row, column).data().toString();
    }
    static QString Counter(searcher& window) { return window.findChild<QLabel*>("Label1")->text(); }
    static void SelectRow(QWidget& window, int row) {
        QTreeView* list = List(window);
        list->selectionModel()->select(
            list->model()->index(row, 0),
            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
};

TEST_F(SearcherWindowTest, TheCounterAndTheRowsOfASearchAndOfARemoval) {
    frmDocument* document = open();
    searcher& window = find();
    EXPECT_EQ(Counter(window), "Found: 0 Entries");
    main->lifecycle().find(document)->aender = false;
    search(window, "mp3");
    EXPECT_EQ(Counter(window), "Found: 4 Entries");
    // The result's header fix-up marks the document behind the window changed.
    EXPECT_TRUE(main->lifecycle().find(document)->aender);
    EXPECT_EQ(Cell(window, 1, 0), "b.mp3");
    EXPECT_EQ(Cell(window, 1, 1), "Music\\Rock\\");
    EXPECT_EQ(Cell(window, 1, 2), "000 000 000 007");
    EXPECT_EQ(Cell(window, 3, 1), kUnresolvedFolder);
    // The executer reads each row's tag: the whole entry line.
    EXPECT_EQ(List(window)->model()->index(1, 0).data(EntryListModel::TagRole).toByteArray(),
              QByteArray::fromStdString(EntryLineOf("00000001", {"b.mp3", "7"})));

    window.findChild<QLineEdit*>("Text1")->setText("o");
    window.findChild<QPushButton*>("FlatBttn2")->click();
    EXPECT_EQ(Counter(window), "Found: 2 Entries");
    EXPECT_EQ(Cell(window, 0, 0), "a.mp3");
    EXPECT_EQ(Cell(window, 1, 0), "b.mp3");
    search(window, "rock.mp3");
    EXPECT_EQ(Counter(window), "Found: 1 Entry");
    // The split sources of the selected folder "Music": its sub-tree, then itself.
    window.findChild<QRadioButton*>("Option2")->click();
    search(window, "mp3");
    EXPECT_EQ(Counter(window), "Found: 3 Entries");
    window.findChild<QRadioButton*>("Option3")->click();
    search(window, "mp3");
    EXPECT_EQ(Counter(window), "Found: 1 Entry");

    // A removal from an empty list does nothing: no result file is made anew.
    window.findChild<QPushButton*>("FlatBttn1")->click();
    EXPECT_EQ(Counter(window), "Found: 0 Entries");
    window.findChild<QPushButton*>("FlatBttn2")->click();
    EXPECT_EQ(Counter(window), "Found: 0 Entries");
    EXPECT_FALSE(std::filesystem::exists(env.folder / "sresult.tmp"));
    screenshot(main.get(), "search_window");
}

TEST_F(SearcherWindowTest, MoreThan25WordsEndTheProcessWithTheOverflowsText) {
    open();
    searcher& window = find();
    std::string ended;
    window.endProcess = [&ended](const std::string& text) { ended = text; };
    window.findChild<QComboBox*>("Combo4")->setCurrentIndex(1);  // "Any Words"
    search(window, QString("w ").repeated(25));
    EXPECT_EQ(ended, "");
    search(window, QString("w ").repeated(26));
    EXPECT_NE(ended, "");
    EXPECT_TRUE(env.screen.shown.empty()) << "the overflow is no ordinary error";
}

TEST_F(SearcherWindowTest, AJumpSelectsTheEntryInItsFolderAndBringsTheDocumentToFront) {
    frmDocument* document = open();
    searcher& window = find();
    search(window, "mp3");
    SelectRow(window, 2);  // rock.mp3 in Music\Rock
    window.listclickinfo();
    window.findChild<QPushButton*>("FlatBttn4")->click();

    EXPECT_EQ(main->mdiArea()->currentSubWindow()->widget(), document);
    ASSERT_NE(document->selectedNode(), nullptr);
    EXPECT_EQ(document->selectedNode()->fullPath, "Music\\Rock");
    const QModelIndexList selected = List(*document)->selectionModel()->selectedRows();
    ASSERT_EQ(selected.size(), 1);
    EXPECT_EQ(selected[0].data().toString(), "rock.mp3");
    EXPECT_TRUE(main->menuEntry("foldermnuTOP")->isEnabled());

    // A row whose folder the TOC does not know jumps nowhere.
    window.Form_Activate();
    SelectRow(window, 3);
    window.listclickinfo();
    window.findChild<QPushButton*>("FlatBttn4")->click();
    EXPECT_EQ(document->selectedNode()->fullPath, "Music\\Rock");
}

TEST_F(SearcherWindowTest, AClosedDocumentLeavesTheListStandingAndItsJumpDoesNothing) {
    open();
    searcher& window = find();
    search(window, "b.mp3");
    env.screen.answerMessage(MsgAnswer::No);  // the search marked it changed: not saved
    documents().at(0)->close();
    window.Form_Activate();
    EXPECT_EQ(Counter(window), "Found: 1 Entry");
    EXPECT_EQ(Cell(window, 0, 0), "b.mp3");
    EXPECT_EQ(window.findChild<QComboBox*>("Combo3")->currentText(), "");
    EXPECT_FALSE(window.findChild<QPushButton*>("Command1")->isEnabled());
    SelectRow(window, 0);
    window.listclickinfo();
    window.findChild<QPushButton*>("FlatBttn4")->click();
    EXPECT_EQ(main->mdiArea()->currentSubWindow()->widget(), &window);
}

TEST_F(SearcherWindowTest, TheDocumentMenusAreOffWhileTheWindowIsInFront) {
    open();
    find();
    for (const char* key : {"foldermnuTOP", "pathmnuTOP", "mnufile2", "mnufile3", "mnufile4"})
        EXPECT_FALSE(main->menuEntry(key)->isEnabled()) << key;
    EXPECT_TRUE(main->menuEntry("viewmnu5")->isChecked());
    main->mdiArea()->setActiveSubWindow(documents().at(0));
    for (const char* key : {"foldermnuTOP", "pathmnuTOP", "mnufile2", "mnufile3", "mnufile4"})
        EXPECT_TRUE(main->menuEntry(key)->isEnabled()) << key;
}

}  // namespace
}  // namespace zvx
