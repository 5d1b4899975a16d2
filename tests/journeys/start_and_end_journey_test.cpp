// How the program starts and ends: every way out ends the process with the clean-up
// done, and a failure on the way is told without ending anything.

#include <gtest/gtest.h>
#include <signal.h>

#include <QDialog>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "shell/frmMain.h"
#include "support/journey.h"
#include "support/temp_folder.h"

namespace zvx::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kWelcome = "Welcome!";
constexpr const char* kClosing = "Closing ZVX...";

std::string Ini(const Journey& journey) {
    return ReadAll(journey.appFolder() / "zvx.ini");
}

TEST(StartAndEndJourney, QuitOnTheWelcomeWindowEndsTheProgramWithTheCleanUpDone) {
    Journey journey;
    journey.screen.expectMessage(kWelcome, MsgAnswer::No);
    // No leaves everything as it was; Yes ends the program.
    journey.onWindow("Form1", [](QWidget& welcome) { Click(welcome, "Command4"); });
    journey.screen.expectMessage(kClosing, MsgAnswer::No);
    journey.onWindow("Form1", [](QWidget& welcome) { Click(welcome, "Command4"); });
    journey.screen.expectMessage(kClosing, MsgAnswer::Yes);
    EXPECT_EQ(journey.run(), 0);
    EXPECT_TRUE(journey.temporaryFiles().empty());
    // The welcome window went before the clean-up, writing its keys.
    EXPECT_NE(Ini(journey).find("FIRSTSTART=no"), std::string::npos);
    EXPECT_NE(Ini(journey).find("FIRSTSTART2=no"), std::string::npos);
}

TEST(StartAndEndJourney, TheSplashIsOwnedByTheMainWindowAndNeverAboveTheQuestions) {
    Journey journey;
    bool checked = false;
    journey.screen.onMessage = [&checked](const std::string& caption) {
        if (caption != kWelcome)
            return;
        frmMain* main = MainWindow();
        ASSERT_NE(main, nullptr);
        auto* splash = main->findChild<QWidget*>("frmSplash");
        ASSERT_NE(splash, nullptr) << "the splash is no window of the main window";
        EXPECT_TRUE(splash->isVisible());
        EXPECT_FALSE(splash->windowFlags() & Qt::WindowStaysOnTopHint);
        checked = true;
    };
    journey.screen.expectMessage(kWelcome, MsgAnswer::No);
    journey.onWindow("Form1", [](QWidget& welcome) { Click(welcome, "Command4"); });
    journey.screen.expectMessage(kClosing, MsgAnswer::Yes);
    journey.run();
    EXPECT_TRUE(checked);
}

TEST(StartAndEndJourney, FileQuitAndTheCloseBoxEndTheProgramAfterTheSaveQuestions) {
    for (const bool closeBox : {false, true}) {
        Journey journey;
        WriteAll(journey.appFolder() / "zvx.ini", "FIRSTSTART=no\r\n");
        journey.onWindow("Form1", [](QWidget& welcome) { Click(welcome, "Command1"); });
        journey.onMain("quit", [closeBox](frmMain& main) {
            if (closeBox)
                main.close();
            else
                Choose(main, "mnufile6");
        });
        if (!closeBox)
            journey.screen.expectMessage(kClosing, MsgAnswer::Yes);
        journey.screen.expectMessage("", MsgAnswer::No, "\"Document 1\"");
        EXPECT_EQ(journey.run(), 0);
        EXPECT_TRUE(journey.temporaryFiles().empty());
    }
}

TEST(StartAndEndJourney, TheEndOfTheSessionEndsTheProgramInOrder) {
    Journey journey;
    WriteAll(journey.appFolder() / "zvx.ini", "FIRSTSTART=no\r\n");
    journey.onWindow("Form1", [](QWidget& welcome) { Click(welcome, "Command1"); });
    journey.onMain("log out", [](frmMain&) { ::raise(SIGTERM); });
    journey.screen.expectMessage("", MsgAnswer::No, "\"Document 1\"");
    EXPECT_EQ(journey.run(), 0);
    EXPECT_TRUE(journey.temporaryFiles().empty());
}

TEST(StartAndEndJourney, AFailingNewDocumentIsToldAndTheProgramGoesOn) {
    Journey journey;
    WriteAll(journey.appFolder() / "zvx.ini", "FIRSTSTART=no\r\n");
    // The working copy of the first new document cannot be made.
    fs::create_directory(journey.appFolder() / "Document 1.tmp");
    journey.onWindow("Form1", [](QWidget& welcome) { Click(welcome, "Command1"); });
    journey.screen.expectMessage("ZVX-Error!", MsgAnswer::Ok, "Document 1.tmp");
    journey.onMain("a second new document", [](frmMain& main) {
        EXPECT_TRUE(main.mdiArea()->subWindowList().isEmpty());
        Choose(main, "mnufile0");
    });
    journey.onMain("quit", [](frmMain& main) {
        ASSERT_EQ(main.mdiArea()->subWindowList().size(), 1);
        EXPECT_EQ(main.mdiArea()->subWindowList()[0]->windowTitle(), "Document 2");
        Choose(main, "mnufile6");
    });
    journey.screen.expectMessage(kClosing, MsgAnswer::Yes);
    journey.screen.expectMessage("", MsgAnswer::No, "\"Document 2\"");
    EXPECT_EQ(journey.run(), 0);
}

TEST(StartAndEndJourney, AnUnreadableSettingsFileLeavesTheDefaults) {
    Journey journey;
    fs::create_directory(journey.appFolder() / "zvx.ini");
    // The defaults: a first start.
    journey.screen.expectMessage(kWelcome, MsgAnswer::No);
    journey.onWindow("Form1", [](QWidget& welcome) { Click(welcome, "Command4"); });
    journey.screen.expectMessage(kClosing, MsgAnswer::Yes);
    // The lasting settings and the welcome window's keys cannot be written: told once each.
    journey.screen.expectMessage("ZVX-Error!", MsgAnswer::Ok);
    journey.screen.expectMessage("ZVX-Error!", MsgAnswer::Ok);
    EXPECT_EQ(journey.run(), 0);
    EXPECT_TRUE(journey.temporaryFiles().empty());
}

}  // namespace
}  // namespace zvx::test
