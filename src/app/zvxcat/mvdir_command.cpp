#include "command_list.h"
#include "document/folder_operations.h"
#include "folder_command_support.h"

namespace zvx::cat {

namespace {

void CheckMvdir(const Arguments& arguments) {
    RequirePositionalCount(arguments, 3, 3);
}

// The target as the moving dialog gives it: a FullPath with a trailing "\", or "\" for
// the root.
std::string MoveTargetOf(const FolderTree& tree, const std::string& text,
                         const std::filesystem::path& file) {
    if (FolderPathArgument(text).empty())
        return "\\";
    return tree.nodes[RequireFolder(tree, text, file)].fullPath + "\\";
}

void RunMvdir(const Arguments& arguments, Common& common, std::ostream&) {
    FolderCatalogue catalogue(common, arguments.positional[0]);
    FolderTree tree = catalogue.tree();
    const FolderNode& source =
        tree.nodes[RequireFolder(tree, arguments.positional[1], catalogue.file())];
    std::string target = MoveTargetOf(tree, arguments.positional[2], catalogue.file());
    FolderChange change = extrememoving(common, catalogue.openWorkingCopy(), tree, source.fullPath,
                                        source.text, target);
    if (!change.changed)
        RefuseChange(catalogue.file());
    catalogue.save();
}

}  // namespace

const Command& MvdirCommand() {
    static const Command command{
        "mvdir",
        "move a folder into another folder",
        "Usage: zvxcat mvdir FILE FOLDERPATH TARGET\n"
        "Moves the folder FOLDERPATH of the catalogue FILE, with everything below it,\n"
        "into the folder TARGET; a TARGET of \\ (or /) is the root. The entries stay in\n"
        "their folders. Refused when TARGET holds a folder of the very same name (case\n"
        "counts; a folder of that name at the root is no refusal), is the folder's own\n"
        "parent, or lies inside the folder (these two without regard to case).\n",
        {},
        CheckMvdir,
        RunMvdir};
    return command;
}

}  // namespace zvx::cat
