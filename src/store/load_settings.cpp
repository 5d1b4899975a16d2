#include "store/load_settings.h"

#include <climits>
#include <string>

#include "common/common.h"
#include "common/numeric_value.h"
#include "common/text_case.h"
#include "metadata/scan_scheme.h"
#include "store/settings.h"

namespace zvx {

namespace {

// A yes/no key is on only for the text "YES"; "yes" and anything else are off.
bool Yes(const Common& common, std::string_view key, std::string_view defaultText) {
    return ReadSetting(common, key, defaultText).isYes();
}

std::string Text(const Common& common, std::string_view key, std::string_view defaultText) {
    return ReadSetting(common, key, defaultText).toText();
}

// Rounded half to even, held within the range of an int.
int WholeNumber(double value) {
    if (value < INT_MIN)
        return INT_MIN;
    if (value > INT_MAX)
        return INT_MAX;
    return static_cast<int>(RoundHalfEven(value));
}

std::string LoadScanScheme(const Common& common) {
    std::string scheme = UpperCase(Text(common, "SCANSCHEME", kDefaultScanScheme));
    return ValidScanScheme(scheme) ? scheme : kDefaultScanScheme;
}

int LoadRenumberingLevel(const Common& common) {
    int level = WholeNumber(ReadSetting(common, "RENUMBERINGLEVEL", 1.0).toNumber());
    return level > 3 || level < 0 ? 1 : level;
}

}  // namespace

void LoadSettings(Common& common) {
    LoadedSettings s;
    s.caseMode = WholeNumber(ReadSetting(common, "PUBCASEMODE", 2.0).toNumber());
    s.flattenControls = Yes(common, "FLATTENCONTROLS", "YES");
    s.allowViewBuffering = Yes(common, "ALLOWVIEWBUFFERING", "NO");
    s.defaultSubViewing = Yes(common, "DEFAULTSUBVIEWING", "NO");
    s.defaultListStyle = Text(common, "DEFAULTLISTSTYLE", "Report");
    s.defaultAudioType = Text(common, "DEFAULTAUDIOTYPE", "Audio: Album");
    s.defaultComment = Text(common, "DEFAULTCOMMENT", "");
    s.useEnhancedView = Yes(common, "USEENHANCEDVIEW", "YES");
    s.enhanceNormalView = Yes(common, "ENHANCENORMALVIEW", "YES");
    s.allowFolderScan = Yes(common, "ALLOWFOLDERSCAN", "YES");
    s.allowFileScan = Yes(common, "ALLOWFILESCAN", "YES");
    s.allowDetagging = Yes(common, "ALLOWDETAGGING", "YES");
    s.allowNonMp3Detagging = Yes(common, "ALLOWNONMP3DETAGGING", "YES");
    s.songGotPriority = Yes(common, "SONGGOTPRIORITY", "YES");
    s.scanScheme = LoadScanScheme(common);
    // The key says which files to leave out; the process keeps which ones to add.
    s.addNullSizedFiles = !Yes(common, "IGNORENULLSIZEDFILES", "YES");
    s.renumberingLevel = LoadRenumberingLevel(common);
    s.viewRenumbering = s.renumberingLevel != 0 && Yes(common, "VIEWRENUMBERING", "YES");
    common.settings = s;
}

}  // namespace zvx
