#pragma once
// The document's selection update (selecTionIzer), run at every change of its
// selection or list: which menu entries are enabled, and the selection state that
// RealSelectionizer then applies to the tool bar.

#include <string_view>
#include <vector>

#include "document/selection_facts.h"
#include "shell/tool_bar.h"

namespace zvx {

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
