#pragma once
// The main window's lasting state in zvx.ini: read when the window loads, written when
// it unloads; and the dialog start folders read at the start.

#include <array>

namespace zvx {

class Common;

// Window states as the winState key stores them.
inline constexpr int kWindowNormal = 0;
inline constexpr int kWindowMinimized = 1;
inline constexpr int kWindowMaximized = 2;

// The flags behind SHOWBAR1 to SHOWBAR4: [0] the standard bar, [3] the progress bar;
// [1] and [2] are stored but not used.
using BarFlags = std::array<bool, 4>;

struct WindowSettings {
    // Position and size in twips (15 a pixel).
    long long left = 1000;
    long long top = 1000;
    long long width = 6500;
    long long height = 6500;
    int winState = kWindowMaximized;
    bool statusBar = true;
    bool showNewsClient = true;
    bool newsClientMinimized = false;
    BarFlags bars = {true, false, false, true};
};

// defnewbar: SHOWBAR1 and SHOWBAR4 read with the default "YES", each flag on only for
// "YES". The flags 2 and 3 start off and are never read.
BarFlags defnewbar(const Common& common);

// The cool bar is visible while any bar flag is set.
bool CoolBarVisible(const BarFlags& bars);

// MainLeft, MainTop (default 1000), MainWidth, MainHeight (default 6500), StatusBar
// (shown for "YES", default "YES"), SHOWNEWSCLIENT (shown unless "NO", default "YES"),
// winState (default 2, maximised), NEWSCLIENTMINIMIZED ("YES" or the default "NO") and
// the bar flags of defnewbar.
WindowSettings LoadWindowSettings(const Common& common);

// The unload handler's writes, in order: the geometry only when the window is neither
// minimised nor maximised (otherwise the last normal session's values stay);
// NEWSCLIENTMINIMIZED and SHOWNEWSCLIENT; winState, StatusBar and SHOWBAR1 to SHOWBAR4;
// lastsavepath, lastloadpath and lastaddpath from the common module; the recent list.
// Yes/no keys are written as "YES" or "NO".
void StoreWindowSettings(const Common& common, const WindowSettings& settings);

// Reads Firststart (default "yes"), lastsavepath and lastloadpath (default empty) into
// the common module. The last add path starts from a second reading of lastloadpath:
// lastaddpath is written at the end of a run but never read.
void ReadStartPaths(Common& common);

}  // namespace zvx
