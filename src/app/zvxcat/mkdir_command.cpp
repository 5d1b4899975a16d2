#include "command_list.h"
#include "document/folder_operations.h"
#include "folder_command_support.h"

namespace zvx::cat {

namespace {

void CheckMkdir(const Arguments& arguments) {
    RequirePositionalCount(arguments, 2, 2);
}

// The window makes a folder under the selected one or at the root; the parent given
// here must exist in the same way.
void RunMkdir(const Arguments& arguments, Common& common, std::ostream& out) {
    FolderCatalogue catalogue(common, arguments.positional[0]);
    std::string path = FolderPathArgument(arguments.positional[1]);
    size_t cut = path.rfind('\\');
    std::string name = cut == std::string::npos ? path : path.substr(cut + 1);
    FolderTree tree = catalogue.tree();
    int parent =
        cut == std::string::npos ? -1 : RequireFolder(tree, path.substr(0, cut), catalogue.file());
    FolderDialogResult dialog =
        FolderDialogAnswers(common, arguments, name, "", 10, catalogue.file());
    dialog.asSubFolder = parent >= 0;
    FolderChange change = CreateFolder(common, catalogue.openWorkingCopy(), tree, parent, dialog);
    if (!change.changed)
        RefuseChange(catalogue.file());
    catalogue.save();
    out << change.id << "\n";
}

}  // namespace

const Command& MkdirCommand() {
    static const Command command{
        "mkdir",
        "make a folder",
        "Usage: zvxcat mkdir FILE FOLDERPATH [--description TEXT] [--icon N]\n"
        "Makes the folder FOLDERPATH in the catalogue FILE and prints its ID, the lowest\n"
        "one free. The folder above it must exist; a path of one name makes a root\n"
        "folder. FOLDERPATH has \\ or / between the names (a text with a \\ in it keeps\n"
        "its /), compared without regard to case. The name may not hold \\ or *, nor\n"
        "the description *, and a folder of the same path must not exist.\n"
        "  --description TEXT  the folder's description (none by default)\n"
        "  --icon N            the icon number (10, \"Folder\", by default): 10, 16, 1, 3,\n"
        "                      4, 8, 17, 7, 12, 13, 18, 14, 6, 11, 5 or 19\n",
        {kDescriptionOption, kIconOption},
        CheckMkdir,
        RunMkdir};
    return command;
}

}  // namespace zvx::cat
