#include <iostream>

#include "command_list.h"
#include "common/common.h"
#include "entry_selection.h"
#include "folder_command_support.h"
#include "store/load_settings.h"

namespace zvx::cat {

namespace {

void CheckRm(const Arguments& arguments) {
    RequirePositionalCount(arguments, 2, 2);
}

void RunRm(const Arguments& arguments, Common& common, std::ostream&) {
    LoadSettings(common);
    FolderCatalogue catalogue(common, arguments.positional[0]);
    const EntryRows rows = SelectEntries(common, catalogue.file(), catalogue.tree(), arguments);
    if (rows.empty()) {
        std::cerr << "zvxcat: no entry selected; " << catalogue.file().string()
                  << " is unchanged\n";
        return;
    }
    if (!arguments.has("--yes") && !ConfirmEntryDelete(common))
        RefuseChange(catalogue.file());
    const size_t removed = DeleteEntries(common, catalogue.openWorkingCopy(), SelectedRowsOf(rows));
    catalogue.save();
    std::cerr << "zvxcat: deleted " << removed << " entries\n";
}

}  // namespace

const Command& RmCommand() {
    static const Command command{
        "rm",
        "delete entries",
        "Usage: zvxcat rm FILE FOLDERPATH [--sub] [--name NAME]... [--yes]\n"
        "Deletes the entries of the folder FOLDERPATH of the catalogue FILE, as the\n"
        "Delete command of the entry list does. FOLDERPATH has \\ or / between the\n"
        "names, compared without regard to case. Asks first, unless --yes answers the\n"
        "question; without a terminal to ask on, nothing is deleted.\n"
        "  --sub        select the entries of all folders below FOLDERPATH too\n"
        "  --name NAME  select only the entries named exactly NAME; may be given more\n"
        "               than once\n"
        "  --yes        delete without asking\n",
        {kSubFlag, kNameOption, "--yes"},
        CheckRm,
        RunRm};
    return command;
}

}  // namespace zvx::cat
