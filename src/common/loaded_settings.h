#pragma once
// The settings that LoadSettings keeps in process variables, with their defaults.

#include <string>

namespace zvx {

struct LoadedSettings {
    int caseMode = 2;                               // PUBCASEMODE
    bool flattenControls = true;                    // FLATTENCONTROLS
    bool allowViewBuffering = false;                // ALLOWVIEWBUFFERING
    bool defaultSubViewing = false;                 // DEFAULTSUBVIEWING
    std::string defaultListStyle = "Report";        // DEFAULTLISTSTYLE
    std::string defaultAudioType = "Audio: Album";  // DEFAULTAUDIOTYPE
    std::string defaultComment;                     // DEFAULTCOMMENT
    bool useEnhancedView = true;                    // USEENHANCEDVIEW
    bool enhanceNormalView = true;                  // ENHANCENORMALVIEW
    bool allowFolderScan = true;                    // ALLOWFOLDERSCAN
    bool allowFileScan = true;                      // ALLOWFILESCAN
    bool allowDetagging = true;                     // ALLOWDETAGGING
    bool allowNonMp3Detagging = true;               // ALLOWNONMP3DETAGGING
    bool songGotPriority = true;                    // SONGGOTPRIORITY
    std::string scanScheme = "$A - $S";             // SCANSCHEME
    bool addNullSizedFiles = false;                 // IGNORENULLSIZEDFILES, inverted
    int renumberingLevel = 1;                       // RENUMBERINGLEVEL
    bool viewRenumbering = true;                    // VIEWRENUMBERING
};

}  // namespace zvx
