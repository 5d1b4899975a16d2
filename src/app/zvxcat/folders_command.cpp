#include "command_list.h"
#include "common/field_text.h"
#include "folder_command_support.h"

namespace zvx::cat {

namespace {

void CheckFolders(const Arguments& arguments) {
    RequirePositionalCount(arguments, 1, 1);
}

void RunFolders(const Arguments& arguments, Common& common, std::ostream& out) {
    FolderCatalogue catalogue(common, arguments.positional[0]);
    std::string text;
    // The ID of a garbled record can hold the line feeds of puflist's item.
    for (const FolderNode& node : catalogue.tree().nodes) {
        text += node.fullPath + '\t' + CleanFieldText(node.id()) + '\t' +
                std::to_string(node.icon) + '\t' + node.description() + '\n';
    }
    out << text;
}

}  // namespace

const Command& FoldersCommand() {
    static const Command command{
        "folders",
        "list the folder tree of a catalogue",
        "Usage: zvxcat folders FILE\n"
        "Lists the folders of the catalogue FILE in the order of the folder tree, one a\n"
        "line: its full path (the names joined by \\), its ID, its icon number and its\n"
        "description, separated by tabs.\n",
        {},
        CheckFolders,
        RunFolders};
    return command;
}

}  // namespace zvx::cat
