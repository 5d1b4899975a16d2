#include "adding/cdwizard_settings.h"

#include "store/settings.h"

namespace zvx {

namespace {

bool Yes(const Common& common, const char* key, const char* defaultText) {
    return ReadSetting(common, key, defaultText).isYes();
}

int Number(const Common& common, const char* key, double defaultNumber) {
    return static_cast<int>(ReadSetting(common, key, defaultNumber).toNumber());
}

std::string Text(const Common& common, const char* key, const char* defaultText) {
    return ReadSetting(common, key, defaultText).toText();
}

void WriteYes(const Common& common, const char* key, bool on) {
    WriteSetting(common, key, on ? "YES" : "NO");
}

}  // namespace

CdwizardSettings LoadCdwizardSettings(const Common& common) {
    CdwizardSettings s;
    s.lastDrive = Number(common, "ADDWIZLASTDRIVEADDED", 0);
    s.lastSubDir = Number(common, "ADDWIZLASTSUBDIR", 0);
    s.subDirsOnly = Yes(common, "ADDWIZSUBDIRS", "NO");
    s.addAsSubData = Yes(common, "ADDWIZADDASSUBDATA", "YES");
    s.makeParental = Yes(common, "ADDWIZMAKEPARENTAL", "YES");
    s.parentalName = Text(common, "ADDWIZLASTPARENTAL", "New Folder");
    s.autoGetName = Yes(common, "ADDWIZAUTOGETNAME", "YES");
    s.makeRealFolders = Yes(common, "ADDWIZMAKEREALFOLDERS", "YES");
    s.autoDetag = Yes(common, "ADDWIZAUTODETAG", "YES");
    s.onlyAddPattern = Yes(common, "ADDWIZONLYADDPATTERN", "NO");
    s.pattern = Text(common, "ADDWIZTHEADDPATTERN", "*.*");
    s.useOwnDescription = Yes(common, "ADDWIZUSEOWNDESCRIPTION", "YES");
    s.ownDescription = Text(common, "ADDWIZTHEOWNDESCRIPTION", "");
    s.topIconRow = Number(common, "DEFAULTTOPLEVELFOLDER", 5);
    s.subIconRow = Number(common, "DEFAULTLOWLEVELFOLDER", 1);
    s.saveMySettings = Yes(common, "ADDWIZSAVEMYSETTINGS", "YES");
    return s;
}

void SaveCdwizardSettings(const Common& common, const CdwizardSettings& s) {
    WriteYes(common, "ADDWIZSAVEMYSETTINGS", s.saveMySettings);
    if (!s.saveMySettings)
        return;
    WriteSetting(common, "ADDWIZLASTDRIVEADDED", s.lastDrive);
    WriteSetting(common, "ADDWIZLASTSUBDIR", s.lastSubDir);
    WriteYes(common, "ADDWIZSUBDIRS", s.subDirsOnly);
    WriteYes(common, "ADDWIZADDASSUBDATA", s.addAsSubData);
    WriteYes(common, "ADDWIZMAKEPARENTAL", s.makeParental);
    WriteSetting(common, "ADDWIZLASTPARENTAL", s.parentalName);
    WriteYes(common, "ADDWIZAUTOGETNAME", s.autoGetName);
    WriteYes(common, "ADDWIZMAKEREALFOLDERS", s.makeRealFolders);
    WriteYes(common, "ADDWIZAUTODETAG", s.autoDetag);
    WriteYes(common, "ADDWIZONLYADDPATTERN", s.onlyAddPattern);
    WriteSetting(common, "ADDWIZTHEADDPATTERN", s.pattern);
    WriteYes(common, "ADDWIZUSEOWNDESCRIPTION", s.useOwnDescription);
    WriteSetting(common, "ADDWIZTHEOWNDESCRIPTION", s.ownDescription);
    WriteSetting(common, "DEFAULTTOPLEVELFOLDER", s.topIconRow);
    WriteSetting(common, "DEFAULTLOWLEVELFOLDER", s.subIconRow);
}

}  // namespace zvx
