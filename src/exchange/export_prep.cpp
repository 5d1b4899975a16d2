#include "exchange/export_prep.h"

#include "common/app_files.h"
#include "common/common.h"
#include "finding/search_files.h"
#include "platform/file_io.h"

namespace zvx {

std::filesystem::path ExportFilePath(const Common& common) {
    return FindInFolder(FindInFolder(common.applicationFolder(), kPluginsFolder), kExportFileName);
}

void ExportInit(Common& common, const std::filesystem::path& cfn,
                const std::optional<SearchFolder>& selected) {
    common.screen().status("Preparing Export...");
    SplitSearchFiles(common, cfn, selected,
                     {"Preparing Export (Mode: Splitted ZVX - Creating TOCs)...",
                      "Preparing Export (Mode Splitted ZVX - Filtering Entries)..."});
}

void PrepareExportFile(Common& common, const std::filesystem::path& cfn, ExportSource source,
                       const std::optional<SearchFolder>& selected,
                       const std::filesystem::path& exportFile) {
    std::filesystem::path from = cfn;
    if (source != ExportSource::Document) {
        ExportInit(common, cfn, selected);
        from =
            common.workFile(source == ExportSource::Folder ? kSearchFolderFile : kSearchTreeFile);
    }
    DeleteFileIfExists(exportFile);
    CopyFileBytes(from, exportFile);
}

std::filesystem::path TakeExportBackup(const Common& common,
                                       const std::filesystem::path& exportFile) {
    const std::filesystem::path backup = common.workFile(kExportBackupFile);
    DeleteFileIfExists(backup);
    CopyFileBytes(exportFile, backup);
    return backup;
}

}  // namespace zvx
