#pragma once
// The commands zvxcat knows, in the order "zvxcat --help" lists them.

#include <ostream>
#include <string_view>

#include "command.h"

namespace zvx::cat {

const Command& NewCommand();
const Command& InfoCommand();
const Command& SettingsCommand();
const Command& LsCommand();
const Command& FoldersCommand();
const Command& MkdirCommand();
const Command& RmdirCommand();
const Command& MvdirCommand();
const Command& RenameCommand();
const Command& TagsCommand();
const Command& ScanCommand();
const Command& AddCommand();
const Command& AddTreeCommand();
const Command& CpCommand();
const Command& MvCommand();
const Command& RmCommand();
const Command& SetCommand();
const Command& EditCommand();
const Command& SearchCommand();
const Command& ExportCommand();
const Command& ImportCommand();
const Command& OpenCommand();
const Command& ExtensionsCommand();

// The command of that name, or nullptr.
const Command* FindCommand(std::string_view name);

void PrintToolHelp(std::ostream& out);
void PrintCommandHelp(const Command& command, std::ostream& out);

}  // namespace zvx::cat
