#include <iostream>
#include <string>

#include "command_list.h"
#include "common/common.h"
#include "console_screen.h"
#include "entry_selection.h"
#include "folder_command_support.h"
#include "store/load_settings.h"

namespace zvx::cat {

namespace {

void CheckCopy(const Arguments& arguments) {
    RequirePositionalCount(arguments, 3, 3);
    AnswersFromArguments(arguments);
}

// The copy or move of the menu commands: the target as the moving dialog gives it, the
// folder's ID followed by "\".
void RunCopyMove(const Arguments& arguments, Common& common, EntryCopyMode mode) {
    LoadSettings(common);
    FolderCatalogue catalogue(common, arguments.positional[0]);
    const FolderTree tree = catalogue.tree();
    const EntryRows rows = SelectEntries(common, catalogue.file(), tree, arguments);
    const int target = RequireFolder(tree, arguments.positional[2], catalogue.file());
    if (rows.empty()) {
        std::cerr << "zvxcat: no entry selected; " << catalogue.file().string()
                  << " is unchanged\n";
        return;
    }
    const EntryCopyCount count =
        CopyMove(common, catalogue.openWorkingCopy(), mode,
                 MovingTarget(MovingMode::Entry, tree, target, true), SelectedRowsOf(rows), true);
    catalogue.save();
    const bool copy = mode == EntryCopyMode::Copy;
    std::cerr << "zvxcat: " << (copy ? "copied " : "moved ") << count.written << " of "
              << count.selected << " selected entries";
    if (count.written < count.selected)
        std::cerr << "; the others were duplicates of entries in the target"
                  << (copy ? " and were not copied" : ", which stay in their place");
    std::cerr << "\n";
}

void RunCp(const Arguments& arguments, Common& common, std::ostream&) {
    RunCopyMove(arguments, common, EntryCopyMode::Copy);
}

void RunMv(const Arguments& arguments, Common& common, std::ostream&) {
    RunCopyMove(arguments, common, EntryCopyMode::Move);
}

}  // namespace

const Command& CpCommand() {
    static const Command command{
        "cp",
        "copy entries into another folder",
        "Usage: zvxcat cp FILE FOLDERPATH TARGET [--sub] [--name NAME]...\n"
        "                 [--on-duplicate WORD]\n"
        "Copies the entries of the folder FOLDERPATH of the catalogue FILE into the\n"
        "folder TARGET, as the Copy command of the entry list does. Each copy is checked\n"
        "against the entries of TARGET that stand before it in the file: the same name,\n"
        "path and medium ID make a duplicate, whatever the size and date. Both paths\n"
        "have \\ or / between the names, compared without regard to case.\n"
        "  --sub                select the entries of all folders below FOLDERPATH too\n"
        "  --name NAME          select only the entries named exactly NAME; may be given\n"
        "                       more than once\n"
        "  --on-duplicate WORD  ask (default), keep-old, keep-all, overwrite, overwrite-all\n",
        {kSubFlag, kNameOption, "--on-duplicate="},
        CheckCopy,
        RunCp};
    return command;
}

const Command& MvCommand() {
    static const Command command{
        "mv",
        "move entries into another folder",
        "Usage: zvxcat mv FILE FOLDERPATH TARGET [--sub] [--name NAME]...\n"
        "                 [--on-duplicate WORD]\n"
        "Moves the entries of the folder FOLDERPATH of the catalogue FILE into the\n"
        "folder TARGET, as the Move command of the entry list does. A moved entry that\n"
        "is a duplicate of an entry of TARGET before it in the file (the same name, path\n"
        "and medium ID) and is answered with keep-old or keep-all is dropped: the entry\n"
        "in TARGET stays.\n"
        "Both paths have \\ or / between the names, compared without regard to case.\n"
        "  --sub                select the entries of all folders below FOLDERPATH too\n"
        "  --name NAME          select only the entries named exactly NAME; may be given\n"
        "                       more than once\n"
        "  --on-duplicate WORD  ask (default), keep-old, keep-all, overwrite, overwrite-all\n",
        {kSubFlag, kNameOption, "--on-duplicate="},
        CheckCopy,
        RunMv};
    return command;
}

}  // namespace zvx::cat
