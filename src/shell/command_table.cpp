#include "shell/command_table.h"

#include <array>

namespace zvx {

namespace {

// The order is part of the behaviour: the first matching row runs.
constexpr std::array kCommandNames{
    CommandName{"mbarstandard", "zvx_toolbars_standard", Command::ToolbarsStandard},
    CommandName{"mbarprogress", "zvx_toolbars_progress", Command::ToolbarsProgress},
    CommandName{"newsclientbar", "zvx_toolbars_newsclient", Command::ToolbarsNewsclient},
    CommandName{"mnuwin0", "zvx_windows_cascase", Command::WindowsCascade},
    CommandName{"mnuwin1", "zvx_windows_tile", Command::WindowsTile},
    CommandName{"mnuwin2", "zvx_windows_split", Command::WindowsSplit},
    CommandName{"mnuwin3", "zvx_windows_arrange_icons", Command::WindowsArrangeIcons},
    CommandName{"mnuhelpabout", "zvx_about", Command::About},
    CommandName{"mnufile0", "document_new", Command::DocumentNew},
    CommandName{"mnufile1", "document_open", Command::DocumentOpen},
    CommandName{"mnufile2", "document_save", Command::DocumentSave},
    CommandName{"mnufile3", "document_saveas", Command::DocumentSaveAs},
    CommandName{"mnufile4", "document_close", Command::DocumentClose},
    CommandName{"mnufile6", "zvx_quit", Command::Quit},
};

struct PrefixCommand {
    std::string_view prefix;
    Command command;
};

// Tried in this order when no name of the table matches.
constexpr std::array kPrefixCommands{
    PrefixCommand{"recentfile", Command::RecentFile},
};

}  // namespace

std::span<const CommandName> CommandNames() {
    return kCommandNames;
}

ResolvedCommand ResolveCommand(std::string_view name) {
    for (const CommandName& row : kCommandNames) {
        // An empty key stands for "no menu entry" and never matches.
        if ((!row.menuKey.empty() && name == row.menuKey) || name == row.otherName)
            return {row.command, {}};
    }
    for (const PrefixCommand& row : kPrefixCommands) {
        if (name.starts_with(row.prefix))
            return {row.command, std::string(name.substr(row.prefix.size()))};
    }
    return {};
}

}  // namespace zvx
