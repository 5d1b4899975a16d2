#pragma once
// SearchInit: the temporary catalogues a search reads, made from a document's working
// copy. searchr.tmp is always a copy of it; in split mode searcht.tmp holds the entries
// of the selected folder and all folders below it, searchf.tmp those of the folder alone,
// both behind the working copy's whole TOC.

#include <filesystem>
#include <optional>
#include <string>

#include "finding/search_files.h"

namespace zvx {

class Common;

// The selected tree node: its full path (names joined by "\") and its folder ID, the
// last eight characters of its tag.
struct SearchFolder {
    std::string fullPath;
    std::string folderId;
};

// A sub-tree may hold at most this many folders.
inline constexpr size_t kSearchTreeFolderLimit = 64001;

// Prepares the search files of the working copy `cfn`, with the status texts of each
// step. In split mode it fires ZVXREFRESHS once the TOCs are written; without a
// selected node (an empty tree) it stops there, and otherwise fixes up the entry offsets
// of searcht.tmp and searchf.tmp, which sets the active document's change flag. A
// folder's sub-tree is every TOC group whose path, lower-cased and ending in "\", begins
// with the selected full path lower-cased and ending in "\". Throws SearchOverflow for a
// sub-tree of more than 64,001 folders, FileError when a file fails.
void SearchInit(Common& common, const std::filesystem::path& cfn, bool splitMode,
                const std::optional<SearchFolder>& selected);

// The status texts of the split: while the TOCs are written, and while the entries are
// filtered. The export's preparation has texts of its own.
struct SplitStatusTexts {
    const char* creatingTocs;
    const char* filteringEntries;
};

// The split alone: searcht.tmp and searchf.tmp as SearchInit makes them in split mode,
// ZVXREFRESHS fired between the two steps.
void SplitSearchFiles(Common& common, const std::filesystem::path& cfn,
                      const std::optional<SearchFolder>& selected, const SplitStatusTexts& texts);

}  // namespace zvx
