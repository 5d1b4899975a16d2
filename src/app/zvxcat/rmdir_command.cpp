#include "command_list.h"
#include "document/folder_operations.h"
#include "folder_command_support.h"

namespace zvx::cat {

namespace {

void CheckRmdir(const Arguments& arguments) {
    RequirePositionalCount(arguments, 2, 2);
}

void RunRmdir(const Arguments& arguments, Common& common, std::ostream&) {
    FolderCatalogue catalogue(common, arguments.positional[0]);
    FolderTree tree = catalogue.tree();
    int folder = RequireFolder(tree, arguments.positional[1], catalogue.file());
    if (!arguments.has("--yes") && !ConfirmFolderDelete(common))
        RefuseChange(catalogue.file());
    DeleteFolder(common, catalogue.openWorkingCopy(), tree, folder);
    catalogue.save();
}

}  // namespace

const Command& RmdirCommand() {
    static const Command command{
        "rmdir",
        "delete a folder with its sub-folders and entries",
        "Usage: zvxcat rmdir FILE FOLDERPATH [--yes]\n"
        "Deletes the folder FOLDERPATH of the catalogue FILE, all folders below it and\n"
        "all their entries. FOLDERPATH is compared without regard to case. Asks first,\n"
        "unless --yes answers the question.\n"
        "  --yes  delete without asking\n",
        {"--yes"},
        CheckRmdir,
        RunRmdir};
    return command;
}

}  // namespace zvx::cat
