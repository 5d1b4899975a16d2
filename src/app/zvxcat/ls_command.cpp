#include <string>

#include "command_list.h"
#include "common/common.h"
#include "document/show_entries.h"
#include "folder_command_support.h"
#include "store/load_settings.h"

namespace zvx::cat {

namespace {

void WriteRow(std::string_view line, const LoadedSettings& settings, bool raw, std::string& text) {
    if (raw) {
        text += line;
    } else {
        for (int column = 1; column <= kListColumnCount; ++column) {
            if (column > 1)
                text += '\t';
            text += DisplayText(line, column, settings);
        }
    }
    text += '\n';
}

void CheckLs(const Arguments& arguments) {
    RequirePositionalCount(arguments, 2, 2);
}

void RunLs(const Arguments& arguments, Common& common, std::ostream& out) {
    FolderCatalogue catalogue(common, arguments.positional[0]);
    const FolderTree tree = catalogue.tree();
    const FolderNode& folder =
        tree.nodes[RequireFolder(tree, arguments.positional[1], catalogue.file())];
    LoadSettings(common);
    // One listing per run can never find a valid view buffer; buffering would only
    // bring the overflow message.
    common.settings.allowViewBuffering = false;
    ViewBuffer buffer;
    EntryRows rows =
        ShowEntries(common, catalogue.file(),
                    {true, folder.id(), folder.fullPath, arguments.has("--sub")}, buffer);
    std::string text;
    for (size_t row = 0; row < rows.size(); ++row) {
        WriteRow(rows.line(row), common.settings, arguments.has("--raw"), text);
        if (text.size() > (1 << 20)) {
            out << text;
            text.clear();
        }
    }
    out << text;
}

}  // namespace

const Command& LsCommand() {
    static const Command command{
        "ls",
        "list the entries of a folder",
        "Usage: zvxcat ls FILE FOLDERPATH [--sub] [--raw]\n"
        "Lists the entries of the folder FOLDERPATH of the catalogue FILE as the entry\n"
        "list shows them, in file order: one line an entry, the texts of its 22 columns\n"
        "separated by tabs. FOLDERPATH is the folder's full path inside the catalogue,\n"
        "with \\ or / between the names, compared without regard to case; a text that\n"
        "holds a \\ keeps its / as part of a name.\n"
        "  --sub  list the entries of all folders below it as well (the sub-view)\n"
        "  --raw  print the stored entry lines instead of the column texts\n",
        {"--sub", "--raw"},
        CheckLs,
        RunLs};
    return command;
}

}  // namespace zvx::cat
