#pragma once
// Where the add-ons appear: menu items built from addlist.tmp (AddOnsShow) and the tool
// bar shortcuts of the add-ons the user asked one for (MenuMakerYo). Each carries its
// call string, which is all that running it needs.

#include <string>
#include <vector>

#include "extensions/extension_lists.h"

namespace zvx {

class Common;

struct AddOnMenuItem {
    std::string parentKey;     // the menu the section's items stand in
    std::string separatorKey;  // the separator in front of the section's first item
    bool firstOfSection = false;
    std::string key;  // "entryaddons(N)", N the record's number from 0
    std::string caption;
    std::string callString;
};

// The items of the list's records in list order. A record of an unknown section counts
// for the numbering but gets no item. "SELECT" shares the separator key of "FOLDER".
std::vector<AddOnMenuItem> AddOnMenuItems(const std::vector<ExtensionDeclaration>& records);

inline constexpr const char* kAddOnKeyPrefix = "entryaddons(";

struct AddOnShortcut {
    std::string caption;
    std::string callString;
    bool visible = false;  // for the sections "FILE", "ZVX", "ROOT" and "HELP"
};

// The add-ons that scan without refusal, are not disabled and whose ADDONSHORTCUT key is
// "YES", in name order. Refused files are passed over without a word.
std::vector<AddOnShortcut> AddOnShortcuts(const Common& common, const ScanTextSink& show);

}  // namespace zvx
