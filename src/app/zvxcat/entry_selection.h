#pragma once
// The entries a zvxcat command works on, as a person selects them in the entry list: the
// rows of FOLDERPATH (with --sub the sub-view, which lists the folders below it too),
// narrowed by any number of "--name NAME" to the entries named exactly NAME. Without
// --name every listed entry is selected.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "arguments.h"
#include "document/copy_move.h"
#include "document/entry_rows.h"
#include "document/folder_tree.h"

namespace zvx {
class Common;
}

namespace zvx::cat {

// The flags of a selection, for a command's table.
inline constexpr std::string_view kSubFlag = "--sub";
inline constexpr std::string_view kNameOption = "--name=";

// The rows of `folder` in list order (file order), those whose name (field 1) is one of
// `names` when any are given. A name is compared as it would be stored: its bytes 01, CR
// and LF count as blanks.
EntryRows SelectEntries(Common& common, const std::filesystem::path& catalogue,
                        const FolderNode& folder, bool sub, const std::vector<std::string>& names);

// The selection of a command's arguments: the folder of the second positional text
// (ToolFailure naming `catalogue` when the tree has none), --sub and every --name.
EntryRows SelectEntries(Common& common, const std::filesystem::path& catalogue,
                        const FolderTree& tree, const Arguments& arguments);

// The selected-row match of the rows.
SelectedRows SelectedRowsOf(const EntryRows& rows);

}  // namespace zvx::cat
