#pragma once
// The main tool bar as data, and the rule that enables its items. Each button and
// each drop-down entry has a tag "<requirements>_<command>": four letters, each "x"
// (nothing), "d" (a document is active), "e" (an entry of the list is selected) or
// "f" (a folder of the tree is selected), then "_" and the command's name.

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace zvx {

struct ToolDropDownItem {
    std::string_view label;
    std::string_view tag;
};

struct ToolButton {
    std::string_view label;  // empty for the separator
    std::string_view tag;
    std::string_view toolTip;                    // empty when the button has none
    std::span<const ToolDropDownItem> dropDown;  // empty when the button has no drop-down
    bool separator = false;
};

// The buttons of the main tool bar in their order.
std::span<const ToolButton> MainToolBar();

// The command name a click on an item gives: the tag without its first five
// characters, lower-cased ("dfxx_folder_delete" gives "folder_delete").
std::string CommandOfTag(std::string_view tag);

// What the active document offers, rebuilt at each change of its selection: slot 1
// "d", slot 2 "e" when an entry is selected, slot 3 "f" when a folder is selected,
// "0" otherwise and in slot 4.
using SelectionState = std::array<std::string_view, 4>;
inline constexpr SelectionState kNoDocumentState{"0", "0", "0", "0"};

// RealSelectionizer's rule for one button or drop-down entry: whether the item with
// this tag is enabled in this state. "xxxx" is always enabled. With keepFolderItems
// an item that requires "f" keeps currentlyEnabled. Otherwise each state text found
// among the four requirement letters (without regard to case) counts once, and the
// item is enabled when that count reaches the number of letters other than "x".
bool ToolItemEnabled(std::string_view tag, const SelectionState& state, bool keepFolderItems,
                     bool currentlyEnabled);

}  // namespace zvx
