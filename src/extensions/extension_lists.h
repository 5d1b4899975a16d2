#pragma once
// pluglist.tmp and addlist.tmp: what the running program knows of its plug-ins and
// add-ons, rebuilt from the declarations at every start, so that a changed declaration
// counts from the next start on. Plain text in the work folder, one field a line,
// records back to back: a plug-in as exe, events, modal; an add-on as menu, exe,
// caption, events, modal. A field never holds a line break (CR, LF and 01 are written
// as blanks).

#include <functional>
#include <string>
#include <vector>

#include "extensions/declaration.h"

namespace zvx {

class Common;

inline constexpr const char* kPlugInListFile = "pluglist.tmp";
inline constexpr const char* kAddOnListFile = "addlist.tmp";

// Where a scan shows what it is doing (the splash window at start-up).
using ScanTextSink = std::function<void(const std::string&)>;

struct ListedExtension {
    std::string fileName;
    ExtensionDeclaration declaration;  // as written to the list
};

struct ExtensionListBuild {
    std::vector<ListedExtension> listed;  // in list order
    std::vector<std::string> disabled;    // file names the user disabled
};

// Rebuilds the list file from the declarations in name order. Each file is announced
// ("Loading Plug-In: " and its name); a file whose PLUGINDISABLE or ADDONDISABLE key is
// "YES" is skipped with "Skipping Plug-In: NAME(Disabled by User)"; a refused file is
// told in its box through the Screen and left out. Throws FileError when the list file
// cannot be written.
ExtensionListBuild BuildPlugInList(const Common& common, const ScanTextSink& show);
ExtensionListBuild BuildAddOnList(const Common& common, const ScanTextSink& show);

// The text that announces a skipped, disabled declaration.
std::string SkippingText(ExtensionKind kind, const std::string& fileName);

// The records of a list file; a missing file has none, and the fields a short last
// record lacks are empty.
std::vector<ExtensionDeclaration> ReadPlugInList(const Common& common);
std::vector<ExtensionDeclaration> ReadAddOnList(const Common& common);

}  // namespace zvx
