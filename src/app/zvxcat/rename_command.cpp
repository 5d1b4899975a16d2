#include <string>

#include "command.h"
#include "command_list.h"
#include "document/folder_operations.h"
#include "folder_command_support.h"
#include "store/entry_offset.h"

namespace zvx::cat {

namespace {

void CheckRename(const Arguments& arguments) {
    RequirePositionalCount(arguments, 3, 3);
}

// The folder properties take only the lines before the header's entry offset for
// folder records. An offset short of the folder table's end would rename some folders
// or none, one beyond it would take entry lines for records: either is refused before
// anything changes, where the window would go on in silence.
void RequireEntryOffsetAtTocEnd(const std::filesystem::path& file) {
    const uint64_t offset = ReadEntryOffset(file);
    const uint64_t tocEnd = FindTocEnd(file);
    if (offset == tocEnd)
        return;
    throw ToolFailure("the entry offset in the header of " + file.string() + " (" +
                      std::to_string(offset) + ") is not the end of its folder table (" +
                      std::to_string(tocEnd) + "): nothing was renamed, and " + file.string() +
                      " is unchanged");
}

void RunRename(const Arguments& arguments, Common& common, std::ostream&) {
    FolderCatalogue catalogue(common, arguments.positional[0]);
    RequireEntryOffsetAtTocEnd(catalogue.file());
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
        "A catalogue whose header's entry offset is not the end of its folder table is\n"
        "refused (see zvxcat info), as the renaming would miss folders.\n"
        "  --description TEXT  the new description\n"
        "  --icon N            the new icon number (see zvxcat mkdir --help)\n",
        {kDescriptionOption, kIconOption},
        CheckRename,
        RunRename};
    return command;
}

}  // namespace zvx::cat
