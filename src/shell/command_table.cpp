#include "shell/command_table.h"

#include <array>

namespace zvx {

namespace {

// The order is part of the behaviour: the first matching row runs.
constexpr std::array kCommandNames{
    CommandName{"", "entry_editstart", Command::EntryEditStart},
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
    CommandName{"mnufile5", "document_export", Command::DocumentExport},
    CommandName{"mnufile6", "zvx_quit", Command::Quit},
    CommandName{"addmnu0", "entry_add_wizard", Command::EntryAddWizard},
    CommandName{"addmnu2", "entry_add_manually", Command::EntryAddManually},
    CommandName{"pathmnu0", "folder_create", Command::FolderCreate},
    CommandName{"pathmnu1", "folder_properties", Command::FolderProperties},
    CommandName{"pathmnu3", "folder_move", Command::FolderMove},
    CommandName{"pathmnu4", "folder_delete", Command::FolderDelete},
    CommandName{"pathmnu6", "document_import", Command::DocumentImport},
    CommandName{"expmnu0", "export_selection", Command::ExportSelection},
    CommandName{"expmnu1", "export_selsub", Command::ExportSelSub},
    CommandName{"expandmnu0", "folder_expandsel", Command::FolderExpandSel},
    CommandName{"expandmnu1", "folder_collapsesel", Command::FolderCollapseSel},
    CommandName{"expandmnu2", "folder_expandall", Command::FolderExpandAll},
    CommandName{"expandmnu3", "folder_collapseall", Command::FolderCollapseAll},
    CommandName{"foldermnu0", "document_find", Command::DocumentFind},
    CommandName{"viewmnu0", "document_view_subview", Command::ViewSubView},
    CommandName{"viewmnu4", "document_view_list", Command::ViewList},
    CommandName{"viewmnu2", "document_view_smallicon", Command::ViewSmallIcons},
    CommandName{"viewmnu3", "document_view_icon", Command::ViewLargeIcons},
    // Its other name is taken by the row above, so only the menu key reaches it.
    CommandName{"viewmnu5", "document_view_icon", Command::ViewReport},
    CommandName{"foldermnu7", "entry_delete", Command::EntryDelete},
    CommandName{"copymovemnu0", "entry_copy", Command::EntryCopy},
    CommandName{"copymovemnu1", "entry_move", Command::EntryMove},
    CommandName{"editmnu0", "entry_editsel", Command::EntryEditSelected},
    CommandName{"editmnu1", "entry_editall", Command::EntryEditAll},
    CommandName{"reportstylemnu0", "document_view_savecols", Command::ViewSaveColumns},
    CommandName{"foldermnu10", "entry_execute", Command::EntryExecute},
    CommandName{"exemnu01", "search_results_execute", Command::SearchResultsExecute},
};

struct PrefixCommand {
    std::string_view prefix;
    Command command;
};

// Tried in this order when no name of the table matches.
constexpr std::array kPrefixCommands{
    PrefixCommand{"recentfile", Command::RecentFile},
    PrefixCommand{"chset", Command::ColumnSetting},
    PrefixCommand{"entryaddons(", Command::AddOn},
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
