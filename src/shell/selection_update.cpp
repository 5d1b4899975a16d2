#include "shell/selection_update.h"

#include <initializer_list>

namespace zvx {

namespace {

void Set(std::vector<MenuInstruction>& menus, std::initializer_list<std::string_view> keys,
         bool enabled) {
    for (std::string_view key : keys)
        menus.push_back({key, enabled});
}

void UpdateListMenus(const SelectionFacts& facts, SelectionUpdate& update) {
    auto& menus = update.menus;
    if (!facts.hasRows) {
        Set(menus,
            {"selectmnu0", "selectmnu1", "selectmnu2", "editmnu0", "editmnu1", "foldermnu7",
             "copymovemnu0", "copymovemnu1"},
            false);
        return;
    }
    Set(menus, {"selectmnu0", "selectmnu1", "selectmnu2", "editmnu1"}, true);
    Set(menus, {"editmnu0", "foldermnu7", "copymovemnu0", "copymovemnu1"}, facts.rowSelected);
    if (facts.rowSelected)
        update.state[1] = "e";
    else
        Set(menus, {"selectmnu1"}, true);
}

void UpdateFolderMenus(const SelectionFacts& facts, SelectionUpdate& update) {
    auto& menus = update.menus;
    if (!facts.hasFolders) {
        Set(menus,
            {"expandmnu0", "expandmnu1", "expandmnu2", "expandmnu3", "pathmnu4", "pathmnu3",
             "pathmnu1", "expmnu0", "expmnu1"},
            false);
        return;
    }
    Set(menus, {"expandmnu2", "expandmnu3"}, true);
    Set(menus,
        {"pathmnu4", "pathmnu3", "pathmnu1", "expandmnu0", "expandmnu1", "expmnu0", "expmnu1"},
        facts.folderSelected);
    if (facts.folderSelected)
        update.state[2] = "f";
}

}  // namespace

SelectionUpdate selecTionIzer(const SelectionFacts& facts, bool keepFolderItems,
                              bool keepEntryState) {
    SelectionUpdate update{{"d", "0", "0", "0"}, !keepFolderItems && !keepEntryState, {}};
    Set(update.menus,
        {"foldermnuTOP", "pathmnuTOP", "mnufile2", "mnufile3", "mnufile4", "mnufile5"}, true);
    UpdateListMenus(facts, update);
    if (!keepFolderItems)
        UpdateFolderMenus(facts, update);
    return update;
}

}  // namespace zvx
