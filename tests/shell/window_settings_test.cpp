#include "shell/window_settings.h"

#include <gtest/gtest.h>

#include "store/settings.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

std::string Stored(const Common& common, const char* key) {
    return ReadSetting(common, key, "<none>").toText();
}

TEST(WindowSettings, AFirstStartIsMaximizedAndYesNoKeysFollowTheirOwnRules) {
    test::TestEnvironment env;
    const WindowSettings first = LoadWindowSettings(env.common);
    EXPECT_EQ(first.winState, kWindowMaximized);
    EXPECT_TRUE(first.statusBar);
    EXPECT_EQ(first.bars, (BarFlags{true, false, false, true}));
    WriteSetting(env.common, "StatusBar", "yes");       // only "YES" shows it
    WriteSetting(env.common, "SHOWNEWSCLIENT", "off");  // only "NO" hides it
    WriteSetting(env.common, "NEWSCLIENTMINIMIZED", "YES");
    WindowSettings settings = LoadWindowSettings(env.common);
    EXPECT_FALSE(settings.statusBar);
    EXPECT_TRUE(settings.showNewsClient);
    EXPECT_TRUE(settings.newsClientMinimized);
    WriteSetting(env.common, "SHOWNEWSCLIENT", "NO");
    EXPECT_FALSE(LoadWindowSettings(env.common).showNewsClient);
}

TEST(WindowSettings, BarsHiddenAtTheEndStayHiddenOnlyByTheirFirstAndFourthKeys) {
    test::TestEnvironment env;
    WindowSettings settings = LoadWindowSettings(env.common);
    settings.bars = {false, true, true, false};
    StoreWindowSettings(env.common, settings);
    EXPECT_EQ(Stored(env.common, "SHOWBAR1"), "NO");
    EXPECT_EQ(Stored(env.common, "SHOWBAR2"), "YES");
    EXPECT_EQ(Stored(env.common, "SHOWBAR3"), "YES");
    EXPECT_EQ(Stored(env.common, "SHOWBAR4"), "NO");
    // SHOWBAR2 and SHOWBAR3 are never read back: both flags start off.
    EXPECT_EQ(defnewbar(env.common), (BarFlags{false, false, false, false}));
    EXPECT_FALSE(CoolBarVisible(defnewbar(env.common)));
    WriteSetting(env.common, "SHOWBAR4", "Yes");
    EXPECT_FALSE(defnewbar(env.common)[3]);
    WriteSetting(env.common, "SHOWBAR4", "YES");
    EXPECT_TRUE(CoolBarVisible(defnewbar(env.common)));
}

TEST(WindowSettings, GeometryIsWrittenOnlyForANormalWindow) {
    test::TestEnvironment env;
    StoreWindowSettings(
        env.common,
        {.left = 300, .top = 450, .width = 9000, .height = 7005, .winState = kWindowNormal});
    for (int state : {kWindowMaximized, kWindowMinimized}) {
        StoreWindowSettings(env.common,
                            {.left = 15, .top = 15, .width = 15, .height = 15, .winState = state});
        WindowSettings loaded = LoadWindowSettings(env.common);
        EXPECT_EQ(loaded.left, 300);
        EXPECT_EQ(loaded.top, 450);
        EXPECT_EQ(loaded.width, 9000);
        EXPECT_EQ(loaded.height, 7005);
        EXPECT_EQ(loaded.winState, state);
    }
}

TEST(WindowSettings, TheEndOfARunStoresPathsAndTheRecentList) {
    test::TestEnvironment env;
    env.common.lastSavePath = "/save";
    env.common.lastLoadPath = "/load";
    env.common.lastAddPath = "/add";
    env.common.Recentlist = {"/m/a.zvx"};
    StoreWindowSettings(env.common, {.statusBar = false, .showNewsClient = false});
    EXPECT_EQ(Stored(env.common, "StatusBar"), "NO");
    EXPECT_EQ(Stored(env.common, "SHOWNEWSCLIENT"), "NO");
    EXPECT_EQ(Stored(env.common, "NEWSCLIENTMINIMIZED"), "NO");
    EXPECT_EQ(Stored(env.common, "winState"), "2");
    EXPECT_EQ(Stored(env.common, "lastaddpath"), "/add");
    EXPECT_EQ(Stored(env.common, "RECENTFILE1"), "/m/a.zvx");

    // The next start takes the add path from lastloadpath, never from lastaddpath.
    test::ScriptedScreen screen;
    Common next(env.folder.path(), env.folder.path(), screen);
    ReadStartPaths(next);
    EXPECT_EQ(next.firstStartMarker, "yes");
    EXPECT_EQ(next.lastSavePath, "/save");
    EXPECT_EQ(next.lastLoadPath, "/load");
    EXPECT_EQ(next.lastAddPath, "/load");
    WriteSetting(env.common, "firststart", "no");
    ReadStartPaths(next);
    EXPECT_EQ(next.firstStartMarker, "no");
}

}  // namespace
}  // namespace zvx
