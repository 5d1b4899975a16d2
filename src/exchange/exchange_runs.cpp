#include "exchange/exchange_runs.h"

#include "common/app_files.h"
#include "common/common.h"
#include "common/file_dialog_modes.h"
#include "exchange/export_prep.h"
#include "exchange/export_target.h"
#include "exchange/merge.h"
#include "extensions/extension_files.h"
#include "extensions/filter_scan.h"
#include "platform/file_io.h"

namespace zvx {

namespace {

// The built-in importer's source: a ".zvx" chosen in the file dialog "import", copied to
// the import file. False when cancelled or refused.
bool TakeChosenCatalogue(Common& common, const std::filesystem::path& imported) {
    const FileDialogResult chosen = expshowing(common, "import");
    if (chosen.paths.empty() || !IsCatalogueName(common.screen(), chosen.paths.front()))
        return false;
    CopyFileBytes(chosen.paths.front(), imported);
    return true;
}

// An external filter's source: whatever it left as the import file.
bool TakeFilterOutput(Common& common, const std::string& filterFile,
                      const std::filesystem::path& imported, const FilterRunner& runFilter) {
    runFilter("import", FilterCallString(common, filterFile));
    std::error_code ec;
    if (std::filesystem::exists(imported, ec))
        return true;
    common.screen().message("", "External Import-Filter Canceled!", MsgButtons::OkOnly,
                            MsgIcon::Information);
    return false;
}

}  // namespace

std::filesystem::path ImportedFilePath(const Common& common) {
    return FindInFolder(PluginsFolder(common), kImportedFileName);
}

void RunExport(Common& common, const std::string& filterFile, ExportTocMode mode,
               const FilterRunner& runFilter) {
    const std::filesystem::path exportFile = ExportFilePath(common);
    ApplyExportToc(common, exportFile, common.workFile(kExportBackupFile), mode, TodayShortDate());
    if (filterFile == kBuiltInFilterFile)
        RunBuiltInExporter(common, exportFile);
    else
        runFilter("export", FilterCallString(common, filterFile));
}

std::string ImportTargetPath(bool asSubData, const std::string& selectedFullPath) {
    return asSubData ? selectedFullPath + "\\" : "";
}

bool RunImport(Common& common, const std::string& filterFile, const std::filesystem::path& cfn,
               const std::string& targetPath, const FilterRunner& runFilter) {
    const std::filesystem::path imported = ImportedFilePath(common);
    TouchFile(imported);
    DeleteFileIfExists(imported);
    const bool taken = filterFile == kBuiltInFilterFile
                           ? TakeChosenCatalogue(common, imported)
                           : TakeFilterOutput(common, filterFile, imported, runFilter);
    if (!taken)
        return false;
    common.screen().status("IMPORT IN PROGRESS...");
    MergeCatalogue(common, cfn, imported, targetPath);
    common.screen().status("");
    return true;
}

}  // namespace zvx
