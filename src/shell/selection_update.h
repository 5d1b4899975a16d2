#pragma once
// The document's selection update (selecTionIzer), run at every change of its
// selection or list: which menu entries are enabled, and the selection state that
// RealSelectionizer then applies to the tool bar.

#include <string_view>
#include <vector>

#include "shell/tool_bar.h"

namespace zvx {

// What the document's list and tree hold at the moment of the update.
struct SelectionFacts {
    bool hasRows = false;         // the list has at least one row
    bool rowSelected = false;     // a row of the list is selected
    bool hasFolders = false;      // the tree has folders
    bool folderSelected = false;  // a folder of the tree is selected
};

// Enable or disable the main window's menu entry with this key. Keys of entries the
// window does not have are skipped by the window.
struct MenuInstruction {
    std::string_view menuKey;
    bool enabled;

    bool operator==(const MenuInstruction&) const = default;
};

struct SelectionUpdate {
    SelectionState state;
    // Refresh the entry-state display first.
    bool refreshEntryState = false;
    // Applied in this order; a key may come twice, the last instruction wins.
    std::vector<MenuInstruction> menus;
};

// keepFolderItems leaves the folder menus as they are and is passed on to
// RealSelectionizer; with it or keepEntryState the entry-state display is not
// refreshed.
SelectionUpdate selecTionIzer(const SelectionFacts& facts, bool keepFolderItems,
                              bool keepEntryState);

}  // namespace zvx
