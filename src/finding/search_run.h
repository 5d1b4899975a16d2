#pragma once
// The actions of the search window as the core runs them: a new search, the removal
// from the result, the folder names of result rows, the counter, Clear and Export.

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_map>

#include "finding/search_files.h"
#include "finding/search_filter.h"

namespace zvx {

class Common;

// "New Search-Result" from the search file of the option: sresult.tmp is made anew with
// the source's header and TOC, the filter appends the lines taken, and its entry offset
// is fixed up (which sets the active document's change flag). Leaves the status at
// "Resolving Folder IDs..." for the caller, which names the rows' folders (FolderResolver)
// and then clears progress and status. Returns the count of lines taken.
size_t NewSearch(Common& common, SearchSourceOption option, const SearchSettings& settings,
                 const ShowEntry& showEntry);

// "Remove from result": sresult.tmp is copied to sresult2.tmp, then made anew as by a new
// search, with its TOC from the option's search file and its entry lines those of
// sresult2.tmp that the search would not take. The caller runs it only when the result
// list has rows. Returns the count of lines kept.
size_t RemoveFromResult(Common& common, SearchSourceOption option, const SearchSettings& settings,
                        const ShowEntry& showEntry);

// resolva: the folder path of a folder ID in the TOC of a search's source. The TOC is
// read once; the answer is the one a reading for every row would give, the path of the
// first group whose third line equals the ID.
class FolderResolver {
  public:
    explicit FolderResolver(const std::filesystem::path& source);
    // The path, or "<???>" when no group has the ID.
    std::string resolva(std::string_view folderId) const;

  private:
    std::unordered_map<std::string, std::string> paths_;
};

inline constexpr const char* kUnresolvedFolder = "<\?\?\?>";
// The ZVX-Folder column of a row until its folder is resolved.
inline constexpr const char* kNotResolvedYet = "<not resolved>";

// "Found: 1 Entry", "Found: N Entries".
std::string FoundText(size_t count);

// "Clear": sresult.tmp is gone.
void ClearResult(Common& common);

// "Export...": makes sure sresult.tmp exists and, when it holds at least 7 bytes (more
// than an empty catalogue's header), copies it to export.tmp in the PLUGINS folder.
// Returns whether it did, which is when the export dialog is to be shown.
bool CopyResultForExport(Common& common);

}  // namespace zvx
