#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <filesystem>

#include "common/common.h"
#include "main_window_fixture.h"
#include "store/settings.h"
#include "support/catalogue_bytes.h"

namespace zvx {
namespace {

using test::MainWindowTest;

bool ButtonEnabled(frmMain& main, const char* tag) {
    return main.findChild<QToolButton*>(tag)->isEnabled();
}

TEST_F(MainWindowTest, ToolBarFollowsTheActiveDocument) {
    EXPECT_TRUE(ButtonEnabled(*main, "xxxx_document_new"));
    EXPECT_FALSE(ButtonEnabled(*main, "dxxx_document_save"));
    EXPECT_FALSE(main->menuEntry("mnufile2")->isEnabled());
    main->ZVXCoreCalls("document_new");
    EXPECT_TRUE(ButtonEnabled(*main, "dxxx_document_save"));
    EXPECT_FALSE(ButtonEnabled(*main, "dexx_entry_editstart"));  // no entry selected
    EXPECT_TRUE(main->menuEntry("mnufile2")->isEnabled());
    screenshot(main.get(), "main_window_new_document");
}

TEST_F(MainWindowTest, BarsAndPanelsToggleByCommand) {
    auto* standard = main->findChild<QToolBar*>("Toolbar1");
    auto* progress = main->findChild<QToolBar*>("ProgressBand");
    EXPECT_FALSE(standard->isHidden());
    main->ZVXCoreCalls("zvx_toolbars_standard");
    EXPECT_TRUE(standard->isHidden());
    EXPECT_FALSE(main->menuEntry("mbarstandard")->isChecked());
    main->ZVXCoreCalls("mbarprogress");
    EXPECT_TRUE(progress->isHidden());
    main->ZVXCoreCalls("mbarstandard");
    EXPECT_FALSE(standard->isHidden());
    EXPECT_TRUE(main->menuEntry("mbarstandard")->isChecked());
}

TEST_F(MainWindowTest, StatusShowsTheTextAndReturnsToReady) {
    auto* panel = main->findChild<QLabel*>("Panel2");
    EXPECT_EQ(panel->text(), "State: Ready.");
    main->status("Saving ZVX...");
    EXPECT_EQ(panel->text(), "State: Saving ZVX...");
    main->status("");
    EXPECT_EQ(panel->text(), "State: Ready.");
}

TEST_F(MainWindowTest, UnknownCommandsAreIgnored) {
    main->ZVXCoreCalls("folder_create");  // its window comes with the folder tree
    main->ZVXCoreCalls("DOCUMENT_NEW");   // names compare exactly
    main->ZVXCoreCalls("");
    EXPECT_TRUE(documents().isEmpty());
    EXPECT_TRUE(env.screen.shown.empty());
}

TEST_F(MainWindowTest, QuitAsksAndNoKeepsEverything) {
    env.screen.answerMessage(MsgAnswer::No);
    main->ZVXCoreCalls("zvx_quit");
    EXPECT_EQ(env.screen.shown.back().caption, "Closing ZVX...");
    EXPECT_EQ(env.screen.shown.back().text, "Are you sure that you want to quit ZVX already?");
    EXPECT_FALSE(main->unloaded());
}

// What is stored is checked with the window settings, the clean-up by the journeys.
TEST_F(MainWindowTest, UnloadStoresTheStateAndEnds) {
    main->ZVXCoreCalls("document_new");
    main->ZVXCoreCalls("zvx_toolbars_progress");
    env.screen.answerMessage(MsgAnswer::No);  // the new document's save question
    bool ended = false;
    main->onUnloaded = [&ended] { ended = true; };
    main->close();
    EXPECT_TRUE(ended);
    EXPECT_EQ(ReadSetting(env.common, "SHOWBAR4", "").toText(), "NO");
}

TEST_F(MainWindowTest, AHandedOverPathOpensAtTheNextPoll) {
    const auto file = env.folder / "handed.zvx";
    test::WriteAll(file, test::CatalogueBytes({}, {}));
    test::WriteAll(env.folder / "zvxopen.tmp", file.string() + "\r\n" + file.string() + "\r\n");
    QTimer* poll = main->findChild<QTimer*>("Timer2");
    ASSERT_TRUE(poll->isActive());
    QMetaObject::invokeMethod(poll, "timeout", Qt::DirectConnection);
    ASSERT_EQ(documents().size(), 1);  // the same path twice in a row loads once
    EXPECT_FALSE(std::filesystem::exists(env.folder / "zvxopen.tmp"));
}

TEST_F(MainWindowTest, AboutShowsTheVersion) {
    QTimer::singleShot(0, [] {
        QWidget* about = QApplication::activeModalWidget();
        ASSERT_NE(about, nullptr);
        EXPECT_EQ(about->objectName(), "frmAbout");
        about->close();
    });
    main->ZVXCoreCalls("zvx_about");
}

}  // namespace
}  // namespace zvx
