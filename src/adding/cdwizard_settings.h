#pragma once
// The remembered choices of the tree-adding wizard in zvx.ini.

#include <string>

namespace zvx {

class Common;

struct CdwizardSettings {
    int lastDrive = 0;                        // ADDWIZLASTDRIVEADDED: row of the device list
    int lastSubDir = 0;                       // ADDWIZLASTSUBDIR: row of the directory list
    bool subDirsOnly = false;                 // ADDWIZSUBDIRS
    bool addAsSubData = true;                 // ADDWIZADDASSUBDATA
    bool makeParental = true;                 // ADDWIZMAKEPARENTAL
    std::string parentalName = "New Folder";  // ADDWIZLASTPARENTAL
    bool autoGetName = true;                  // ADDWIZAUTOGETNAME
    bool makeRealFolders = true;              // ADDWIZMAKEREALFOLDERS
    bool autoDetag = true;                    // ADDWIZAUTODETAG
    bool onlyAddPattern = false;              // ADDWIZONLYADDPATTERN
    std::string pattern = "*.*";              // ADDWIZTHEADDPATTERN
    bool useOwnDescription = true;            // ADDWIZUSEOWNDESCRIPTION
    std::string ownDescription;               // ADDWIZTHEOWNDESCRIPTION
    int topIconRow = 5;          // DEFAULTTOPLEVELFOLDER: item of the icon combo, from 1
    int subIconRow = 1;          // DEFAULTLOWLEVELFOLDER: item of the icon combo, from 1
    bool saveMySettings = true;  // ADDWIZSAVEMYSETTINGS
};

CdwizardSettings LoadCdwizardSettings(const Common& common);

// At the wizard's unload: ADDWIZSAVEMYSETTINGS is always written, the other keys only
// when it is on.
void SaveCdwizardSettings(const Common& common, const CdwizardSettings& settings);

}  // namespace zvx
