#pragma once
// What the export dialog works on: PLUGINS/export.tmp, made from the whole working copy,
// from the selected folder or from its sub-tree, and expback.tmp, the untouched copy
// every run of the dialog begins from.

#include <filesystem>
#include <optional>

#include "finding/search_preparation.h"

namespace zvx {

class Common;

inline constexpr const char* kExportFileName = "export.tmp";
inline constexpr const char* kExportBackupFile = "expback.tmp";

// The three export commands: exportall_Click, exportsel_Click, exportsub_Click.
enum class ExportSource { Document, Folder, SubTree };

// PLUGINS/export.tmp of the application folder, where filters look for it.
std::filesystem::path ExportFilePath(const Common& common);

// ExportInit: searcht.tmp and searchf.tmp of the selected folder, as a split search
// makes them, with the export's status texts.
void ExportInit(Common& common, const std::filesystem::path& cfn,
                const std::optional<SearchFolder>& selected);

// Makes `exportFile` afresh from the working copy `cfn`: a copy of it, or of the folder's
// or the sub-tree's file that ExportInit prepares.
void PrepareExportFile(Common& common, const std::filesystem::path& cfn, ExportSource source,
                       const std::optional<SearchFolder>& selected,
                       const std::filesystem::path& exportFile);

// The form's load: expback.tmp in the work folder becomes a fresh copy of `exportFile`.
// Returns its path.
std::filesystem::path TakeExportBackup(const Common& common,
                                       const std::filesystem::path& exportFile);

}  // namespace zvx
