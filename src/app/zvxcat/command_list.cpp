#include "command_list.h"

#include <array>
#include <iomanip>

namespace zvx::cat {

namespace {

std::array<const Command*, 23> AllCommands() {
    return {&NewCommand(),     &InfoCommand(),       &SettingsCommand(), &LsCommand(),
            &FoldersCommand(), &MkdirCommand(),      &RmdirCommand(),    &MvdirCommand(),
            &RenameCommand(),  &TagsCommand(),       &ScanCommand(),     &AddCommand(),
            &AddTreeCommand(), &SetCommand(),        &EditCommand(),     &CpCommand(),
            &MvCommand(),      &RmCommand(),         &SearchCommand(),   &ExportCommand(),
            &ImportCommand(),  &ExtensionsCommand(), &OpenCommand()};
}

}  // namespace

const Command* FindCommand(std::string_view name) {
    for (const Command* command : AllCommands()) {
        if (name == command->name)
            return command;
    }
    return nullptr;
}

void PrintToolHelp(std::ostream& out) {
    out << "Usage: zvxcat COMMAND [ARGUMENTS]\n"
           "       zvxcat COMMAND --help\n\n"
           "Commands:\n";
    for (const Command* command : AllCommands()) {
        out << "  " << std::left << std::setw(12) << command->name << command->summary << "\n";
    }
    out << "\nExit status: 0 success, 1 failure, 2 wrong use, 3 a search that outgrew its\n"
           "limits.\n";
}

void PrintCommandHelp(const Command& command, std::ostream& out) {
    out << command.usage;
}

}  // namespace zvx::cat
