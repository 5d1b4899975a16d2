#include "command_list.h"
#include "document/folder_operations.h"
#include "folder_command_support.h"

namespace zvx::cat {

namespace {

void CheckRename(const Arguments& arguments) {
    RequirePositionalCount(arguments, 3, 3);
}

void RunRename(const Arguments& arguments, Common& common, std::ostream&) {
    FolderCatalogue catalogue(common, arguments.positional[0]);
    FolderTree tree = catalogue.tree();
    int folder = RequireFolder(tree, arguments.positional[1], catalogue.file());
    const FolderNode& node = tree.nodes[folder];
    FolderDialogResult dialog =
        FolderDialogAnswers(common, arguments, arguments.positional[2], node.description(),
                            node.icon, catalogue.file());
    FolderChange change =
        ChangeFolderProperties(common, catalogue.openWorkingCopy(), tree, folder, dialog);
    if (!change.changed)
        RefuseChange(catalogue.file());
    catalogue.save();
}

}  // namespace

const Command& RenameCommand() {
    static const Command command{
        "rename",
        "rename a folder or change its description and icon",
        "Usage: zvxcat rename FILE FOLDERPATH NAME [--description TEXT] [--icon N]\n"
        "Gives the folder FOLDERPATH of the catalogue FILE the name NAME, and the\n"
        "description and icon number when given (else it keeps its own). As in the\n"
        "folder properties of the window, every folder whose path begins with the old\n"
        "one is renamed with it: renaming Music turns a Music2 beside it into the\n"
        "sub-folder 2 of the renamed folder. A new name other than in case must not\n"
        "exist beside the folder. The name may not hold \\ or *, nor the description *.\n"
        "  --description TEXT  the new description\n"
        "  --icon N            the new icon number (see zvxcat mkdir --help)\n",
        {kDescriptionOption, kIconOption},
        CheckRename,
        RunRename};
    return command;
}

}  // namespace zvx::cat
