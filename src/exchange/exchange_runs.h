#pragma once
// One press of the exchange dialogs' button: an export of export.tmp by its TOC mode to
// the built-in exporter or an external filter, and an import of a catalogue (chosen, or
// made by an external filter as PLUGINS/imported.tmp) merged into the working copy.

#include <filesystem>
#include <functional>
#include <string>

#include "exchange/export_toc.h"

namespace zvx {

class Common;

// Runs an external filter: writes the hand-over files for the event ("export",
// "import"), then starts the call string by the add-on protocol and waits.
using FilterRunner = std::function<void(const std::string& eventName, const std::string& call)>;

inline constexpr const char* kImportedFileName = "imported.tmp";

// PLUGINS/imported.tmp, where an import filter leaves its catalogue.
std::filesystem::path ImportedFilePath(const Common& common);

// The export dialog's run: export.tmp made anew from the untouched copy with the mode
// applied, then handed to the filter of the row's declaration file. The dialog stays
// open, so a second run starts from the same copy.
void RunExport(Common& common, const std::string& filterFile, ExportTocMode mode,
               const FilterRunner& runFilter);

// The place an import goes: the selected folder's path and "\" as sub-data, or the root.
std::string ImportTargetPath(bool asSubData, const std::string& selectedFullPath);

// The import dialog's run into the working copy `cfn`. False when it ended before the
// merge: the file dialog was cancelled, the chosen file is not a ".zvx", or the filter
// left no file ("External Import-Filter Canceled!"). A merge refused for want of folder
// IDs has told its box and counts as run: the document is shown anew either way.
bool RunImport(Common& common, const std::string& filterFile, const std::filesystem::path& cfn,
               const std::string& targetPath, const FilterRunner& runFilter);

}  // namespace zvx
