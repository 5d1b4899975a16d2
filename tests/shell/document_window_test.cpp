#include <QHeaderView>
#include <QLabel>
#include <QShortcut>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>

#include "common/common.h"
#include "document/frmDocument.h"
#include "main_window_fixture.h"
#include "shell/config_files.h"
#include "store/settings.h"
#include "support/catalogue_bytes.h"

namespace zvx {
namespace {

using test::EntryLineOf;

class DocumentWindowTest : public test::MainWindowTest {
  protected:
    frmDocument* open() {
        PrepareConfigFiles(env.common);
        main->CheadRefresh();
        const auto file = env.folder / "music.zvx";
        test::WriteAll(file, test::CatalogueBytes(
                                 {{"Music\\", "songs", 10, "00000000"},
                                  {"Photos\\", "", 11, "00000002"},
                                  {"Music\\Rock\\", "", 4, "00000001"}},
                                 {EntryLineOf("00000000", {"a.mp3", "5", "c:\\m", "CD1", "1", "",
                                                           "01-01-2000", "Audio: Album", "Song",
                                                           "Band", "", "", "", "", "3", "0"}),
                                  EntryLineOf("00000001", {"b.mp3", "1025"}),
                                  EntryLineOf("00000002", {"c.jpg", "10"})}));
        env.common.pendingDocument = file.string();
        main->ZVXCoreCalls("document_open");
        return dynamic_cast<frmDocument*>(documents().at(0)->widget());
    }
    static QString Cell(frmDocument* document, int row, int column) {
        auto* list = document->findChild<QTreeView*>("ListView1");
        return list->model()->index(row, column).data().toString();
    }
};

TEST_F(DocumentWindowTest, OpeningShowsTheTreeAndTheFirstFoldersEntries) {
    frmDocument* document = open();
    auto* tree = document->findChild<QTreeWidget*>("List2");
    ASSERT_EQ(tree->topLevelItemCount(), 2);
    EXPECT_EQ(tree->topLevelItem(0)->text(0), "Music");
    EXPECT_EQ(tree->topLevelItem(0)->child(0)->text(0), "Rock");
    EXPECT_EQ(document->findChild<QLabel*>("Label1")->text(), "Folder: Music (songs)");
    auto* list = document->findChild<QTreeView*>("ListView1");
    ASSERT_EQ(list->model()->rowCount(), 1);
    EXPECT_EQ(Cell(document, 0, 0), "a.mp3");
    EXPECT_EQ(Cell(document, 0, 1), "000 000 000 005");
    EXPECT_EQ(Cell(document, 0, 14), "03");  // the track format of the view
    screenshot(main.get(), "document_window");

    main->ZVXCoreCalls("document_view_subview");
    EXPECT_EQ(list->model()->rowCount(), 2);
    EXPECT_TRUE(main->menuEntry("viewmnu0")->isChecked());
}

TEST_F(DocumentWindowTest, TheListShowsTheBackgroundPictureWhenAskedTo) {
    WriteSetting(env.common, "LISTVIEWSHOWBACK", "YES");
    frmDocument* document = open();
    auto* list = document->findChild<QTreeView*>("ListView1");
    EXPECT_EQ(list->viewport()->palette().brush(QPalette::Base).style(), Qt::TexturePattern);
    EXPECT_FALSE(list->viewport()->palette().brush(QPalette::Base).texture().isNull());
    screenshot(main.get(), "list_background_picture");
}

TEST_F(DocumentWindowTest, CollapsingTheBranchOfTheShownFolderListsTheCollapsedOne) {
    frmDocument* document = open();
    auto* tree = document->findChild<QTreeWidget*>("List2");
    QTreeWidgetItem* music = tree->topLevelItem(0);
    music->setExpanded(true);
    tree->setCurrentItem(music->child(0));
    EXPECT_EQ(Cell(document, 0, 0), "b.mp3");
    tree->doItemsLayout();  // a pending layout swallows the collapse signal
    music->setExpanded(false);
    EXPECT_EQ(tree->currentItem(), music);
    EXPECT_EQ(document->findChild<QLabel*>("Label1")->text(), "Folder: Music (songs)");
    EXPECT_EQ(Cell(document, 0, 0), "a.mp3");
}

TEST_F(DocumentWindowTest, TheDeleteKeyOnTheTreeAsksToDeleteTheFolder) {
    frmDocument* document = open();
    auto* tree = document->findChild<QTreeWidget*>("List2");
    auto* deleteKey = tree->findChild<QShortcut*>();
    ASSERT_NE(deleteKey, nullptr);
    EXPECT_EQ(deleteKey->key(), QKeySequence(Qt::Key_Delete));
    env.screen.answerMessage(MsgAnswer::No);
    emit deleteKey->activated();
    ASSERT_FALSE(env.screen.shown.empty());
    EXPECT_NE(env.screen.shown.back().text.find("delete the selected Folder"), std::string::npos);
    EXPECT_EQ(tree->topLevelItemCount(), 2);
}

TEST_F(DocumentWindowTest, EachListStyleShowsTheRows) {
    frmDocument* document = open();
    main->ZVXCoreCalls("document_view_subview");
    const std::pair<const char*, int> styles[] = {
        {"viewmnu4", 2}, {"viewmnu2", 1}, {"viewmnu3", 0}, {"viewmnu5", 3}};
    for (const auto& [key, style] : styles) {
        main->ZVXCoreCalls(key);
        EXPECT_EQ(document->listStyle(), style);
        EXPECT_TRUE(main->menuEntry(key)->isChecked());
        screenshot(main.get(), (std::string("list_style_") + key).c_str());
    }
    // nothemes hides the tree, and a rebuild leaves it hidden.
    auto* tree = document->findChild<QTreeWidget*>("List2");
    document->findChild<QToolButton*>("nothemes")->click();
    EXPECT_TRUE(tree->isHidden());
    document->refresh_Click();
    EXPECT_TRUE(tree->isHidden());
}

TEST_F(DocumentWindowTest, AudioShortShowsSixColumns) {
    frmDocument* document = open();
    QAction* audioShort = main->menuEntry("chset0");  // the settings sorted by name
    ASSERT_NE(audioShort, nullptr);
    ASSERT_EQ(audioShort->text(), "Audio-Short");
    audioShort->trigger();
    auto* list = document->findChild<QTreeView*>("ListView1");
    QStringList shown;
    for (int visual = 0; visual < 22; ++visual) {
        const int logical = list->header()->logicalIndex(visual);
        if (!list->header()->isSectionHidden(logical))
            shown << list->model()->headerData(logical, Qt::Horizontal).toString();
    }
    EXPECT_EQ(shown, (QStringList{"Track", "Artist", "Title", "Length", "Album", "Year"}));
}

}  // namespace
}  // namespace zvx
