#pragma once
// The options dialog's lists of plug-ins and add-ons (PLUGini, Addini). They scan the
// declarations as the start-up does but stay silent: a file that is refused is simply
// not listed. Disabled files are listed, since this is where they are enabled again.

#include <string>
#include <vector>

#include "extensions/extension_lists.h"

namespace zvx {

class Common;

struct ExtensionRow {
    // "<NAME>", or an add-on's caption when it has no name.
    std::string name;
    std::string fileName;  // upper case
    std::string enabled;   // "YES" or "NO"
    int icon = 1;          // 1 enabled, 2 disabled
};

// The declarations of a kind that scan without refusal, in name order, disabled ones
// included; each file is announced through `show` ("Scanning Add-On: " and its name).
std::vector<ListedExtension> ScanSilently(const Common& common, ExtensionKind kind,
                                          const ScanTextSink& show);

// Each file is announced on the dialog's label through `show` ("Scanning Plug-In: " and
// the file name).
std::vector<ExtensionRow> PLUGini(const Common& common, const ScanTextSink& show);
std::vector<ExtensionRow> Addini(const Common& common, const ScanTextSink& show);

// The toggle button's text for the selected row: "Enable" for a disabled file,
// "Disable" otherwise.
std::string ToggleCaption(const ExtensionRow& row);

}  // namespace zvx
