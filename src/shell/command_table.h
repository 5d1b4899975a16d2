#pragma once
// The names of the main window's commands. ZVXCoreCalls takes a name from a menu
// (the item's key, lower-cased), a tool bar (the tag without its requirements) or
// another window, and runs the command that the name selects here.

#include <span>
#include <string>
#include <string_view>

namespace zvx {

enum class Command {
    None,  // an unknown name: ignored without a message
    EntryEditStart,
    ToolbarsStandard,
    ToolbarsProgress,
    ToolbarsNewsclient,
    WindowsCascade,
    WindowsTile,
    WindowsSplit,
    WindowsArrangeIcons,
    About,
    DocumentNew,
    DocumentOpen,
    DocumentSave,
    DocumentSaveAs,
    DocumentClose,
    Quit,
    EntryAddWizard,
    EntryAddManually,
    FolderCreate,
    FolderProperties,
    FolderMove,
    FolderDelete,
    FolderExpandSel,
    FolderCollapseSel,
    FolderExpandAll,
    FolderCollapseAll,
    DocumentFind,
    ViewSubView,
    ViewList,
    ViewSmallIcons,
    ViewLargeIcons,
    ViewReport,
    EntryDelete,
    EntryCopy,
    EntryMove,
    EntryEditSelected,
    EntryEditAll,
    ViewSaveColumns,
    EntryExecute,
    DocumentExport,
    ExportSelection,
    ExportSelSub,
    DocumentImport,
    SearchResultsExecute,
    RecentFile,     // the argument is the rest of the name: the number of the menu entry
    ColumnSetting,  // the argument is the number of the column-setting menu entry
    AddOn,          // entryaddons(N): the argument is "N)"
};

// One row of the name table: the menu entry's key and the name for tool bars and
// other callers. Either selects the command.
struct CommandName {
    std::string_view menuKey;  // empty for a command without a menu entry
    std::string_view otherName;
    Command command;
};

// The name table in its order; the first matching row wins, so a name given to two
// rows selects the first. Menu keys also name the menu entries of the main window.
std::span<const CommandName> CommandNames();

struct ResolvedCommand {
    Command command = Command::None;
    std::string argument;  // the rest of the name after the prefix of a prefix command
};

// The command a name selects: the table by exact comparison first, then the prefix
// commands ("recentfile3" is RecentFile with "3"); Command::None for any other name,
// the empty one included.
ResolvedCommand ResolveCommand(std::string_view name);

}  // namespace zvx
