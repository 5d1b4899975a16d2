#include "finding/search_run.h"

#include "common/app_files.h"
#include "common/common.h"
#include "finding/search_filter.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "store/catalogue_format.h"
#include "store/entry_offset.h"
#include "store/toc.h"

namespace zvx {

namespace {

constexpr const char* kGeneratingToc = "Generating Search Results TOC...";
constexpr const char* kInitiatingSearch = "Initiating Search...";
constexpr const char* kResolvingFolders = "Resolving Folder IDs...";
constexpr const char* kExportFile = "export.tmp";
// An empty catalogue is 7 bytes; anything shorter holds not even that.
constexpr uint64_t kExportableLength = 7;

// Steps 3 to 5 of both actions: the result's head from the search file, the filter over
// `lines`, the header fix-up.
size_t MakeResult(Common& common, SearchSourceOption option, const std::filesystem::path& lines,
                  const SearchSettings& settings, bool removeMode, const ShowEntry& showEntry) {
    const std::filesystem::path source = SearchSourceFile(common, option);
    const std::filesystem::path result = common.workFile(kSearchResultFile);
    WriteEmptyFile(result);
    common.screen().status(kGeneratingToc);
    {
        AppendWriter writer(result);
        writer.write(SearchHead(source));
        writer.close();
    }
    common.screen().status(kInitiatingSearch);
    const size_t count = SelFiltering(common, lines, result, settings, removeMode, showEntry);
    UpdateEntryOffset(common, result);
    common.screen().status(kResolvingFolders);
    return count;
}

}  // namespace

size_t NewSearch(Common& common, SearchSourceOption option, const SearchSettings& settings,
                 const ShowEntry& showEntry) {
    return MakeResult(common, option, SearchSourceFile(common, option), settings, false, showEntry);
}

size_t RemoveFromResult(Common& common, SearchSourceOption option, const SearchSettings& settings,
                        const ShowEntry& showEntry) {
    const std::filesystem::path copy = common.workFile(kSearchResultCopyFile);
    const std::filesystem::path result = common.workFile(kSearchResultFile);
    DeleteFileIfExists(copy);
    TouchFile(result);
    CopyFileBytes(result, copy);
    return MakeResult(common, option, copy, settings, true, showEntry);
}

FolderResolver::FolderResolver(const std::filesystem::path& source) {
    LineReader reader(source, kTocStart);
    TocGroup group;
    while (ReadTocGroup(reader, group))
        paths_.emplace(group.id, group.path);
}

std::string FolderResolver::resolva(std::string_view folderId) const {
    const auto found = paths_.find(std::string(folderId));
    return found == paths_.end() ? kUnresolvedFolder : found->second;
}

std::string FoundText(size_t count) {
    return "Found: " + std::to_string(count) + (count == 1 ? " Entry" : " Entries");
}

void ClearResult(Common& common) {
    const std::filesystem::path result = common.workFile(kSearchResultFile);
    TouchFile(result);
    DeleteFileIfExists(result);
}

bool CopyResultForExport(Common& common) {
    const std::filesystem::path result = common.workFile(kSearchResultFile);
    TouchFile(result);
    if (FileLength(result) < kExportableLength)
        return false;
    const std::filesystem::path plugins = FindInFolder(common.applicationFolder(), kPluginsFolder);
    CopyFileBytes(result, FindInFolder(plugins, kExportFile));
    return true;
}

}  // namespace zvx
