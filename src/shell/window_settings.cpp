#include "shell/window_settings.h"

#include <algorithm>
#include <climits>
#include <string>

#include "common/common.h"
#include "common/numeric_value.h"
#include "shell/recent_list.h"
#include "store/settings.h"

namespace zvx {

namespace {

// A whole number, held within the range of int whatever the file says.
long long ReadNumber(const Common& common, const char* key, double defaultNumber) {
    double value = ReadSetting(common, key, defaultNumber).toNumber();
    return RoundHalfEven(std::clamp(value, double(INT_MIN), double(INT_MAX)));
}

std::string ReadText(const Common& common, const char* key, const char* defaultText) {
    return ReadSetting(common, key, defaultText).toText();
}

const char* YesNo(bool on) {
    return on ? "YES" : "NO";
}

std::string BarKey(size_t index) {
    return "SHOWBAR" + std::to_string(index + 1);
}

}  // namespace

BarFlags defnewbar(const Common& common) {
    BarFlags bars = {false, false, false, false};
    bars[0] = ReadText(common, "SHOWBAR1", "YES") == "YES";
    bars[3] = ReadText(common, "SHOWBAR4", "YES") == "YES";
    return bars;
}

bool CoolBarVisible(const BarFlags& bars) {
    return std::any_of(bars.begin(), bars.end(), [](bool on) { return on; });
}

WindowSettings LoadWindowSettings(const Common& common) {
    WindowSettings settings;
    settings.left = ReadNumber(common, "MainLeft", 1000);
    settings.top = ReadNumber(common, "MainTop", 1000);
    settings.width = ReadNumber(common, "MainWidth", 6500);
    settings.height = ReadNumber(common, "MainHeight", 6500);
    settings.statusBar = ReadText(common, "StatusBar", "YES") == "YES";
    settings.showNewsClient = ReadText(common, "SHOWNEWSCLIENT", "YES") != "NO";
    settings.winState = static_cast<int>(ReadNumber(common, "winState", kWindowMaximized));
    settings.newsClientMinimized = ReadText(common, "NEWSCLIENTMINIMIZED", "NO") == "YES";
    settings.bars = defnewbar(common);
    return settings;
}

void StoreWindowSettings(const Common& common, const WindowSettings& settings) {
    if (settings.winState == kWindowNormal) {
        WriteSetting(common, "MainLeft", static_cast<double>(settings.left));
        WriteSetting(common, "MainTop", static_cast<double>(settings.top));
        WriteSetting(common, "MainWidth", static_cast<double>(settings.width));
        WriteSetting(common, "MainHeight", static_cast<double>(settings.height));
    }
    WriteSetting(common, "NEWSCLIENTMINIMIZED", YesNo(settings.newsClientMinimized));
    WriteSetting(common, "SHOWNEWSCLIENT", YesNo(settings.showNewsClient));
    WriteSetting(common, "winState", static_cast<double>(settings.winState));
    WriteSetting(common, "StatusBar", YesNo(settings.statusBar));
    for (size_t i = 0; i < settings.bars.size(); ++i)
        WriteSetting(common, BarKey(i), YesNo(settings.bars[i]));
    WriteSetting(common, "lastsavepath", common.lastSavePath);
    WriteSetting(common, "lastloadpath", common.lastLoadPath);
    WriteSetting(common, "lastaddpath", common.lastAddPath);
    StoreRecentList(common);
}

void ReadStartPaths(Common& common) {
    common.firstStartMarker = ReadText(common, "Firststart", "yes");
    common.lastSavePath = ReadText(common, "lastsavepath", "");
    common.lastLoadPath = ReadText(common, "lastloadpath", "");
    common.lastAddPath = ReadText(common, "lastloadpath", "");
}

}  // namespace zvx
