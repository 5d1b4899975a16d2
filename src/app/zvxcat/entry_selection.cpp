#include "entry_selection.h"

#include <algorithm>

#include "common/common.h"
#include "common/field_text.h"
#include "document/show_entries.h"
#include "folder_command_support.h"

namespace zvx::cat {

EntryRows SelectEntries(Common& common, const std::filesystem::path& catalogue,
                        const FolderNode& folder, bool sub, const std::vector<std::string>& names) {
    // One listing per run can never find a valid view buffer; buffering would only bring
    // the overflow message.
    common.settings.allowViewBuffering = false;
    ViewBuffer buffer;
    EntryRows listed =
        ShowEntries(common, catalogue, {true, folder.id(), folder.fullPath, sub}, buffer);
    if (names.empty())
        return listed;
    std::vector<std::string> stored(names.size());
    std::transform(names.begin(), names.end(), stored.begin(), CleanFieldText);
    EntryRows selected;
    for (size_t row = 0; row < listed.size(); ++row) {
        const std::string_view line = listed.line(row);
        if (std::find(stored.begin(), stored.end(), EntryItem(line, 1)) != stored.end())
            selected.add(line);
    }
    return selected;
}

EntryRows SelectEntries(Common& common, const std::filesystem::path& catalogue,
                        const FolderTree& tree, const Arguments& arguments) {
    const FolderNode& folder = tree.nodes[RequireFolder(tree, arguments.positional[1], catalogue)];
    return SelectEntries(common, catalogue, folder, arguments.has(kSubFlag),
                         arguments.all("--name"));
}

SelectedRows SelectedRowsOf(const EntryRows& rows) {
    SelectedRows selected;
    for (size_t row = 0; row < rows.size(); ++row)
        selected.add(rows.line(row));
    return selected;
}

}  // namespace zvx::cat
