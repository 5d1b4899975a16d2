#include "shell/tool_bar.h"

#include <algorithm>

#include "common/text_case.h"

namespace zvx {

namespace {

constexpr ToolDropDownItem kFolderItems[] = {
    {"Create New...", "dxxx_folder_create"},
    {"Edit Properties...", "dfxx_folder_properties"},
    {"Delete", "dfxx_folder_delete"},
};

constexpr ToolDropDownItem kAddItems[] = {
    {"Wizard...", "dxxx_entry_add_wizard"},
    {"Audio-CD...", "dxxx_entry_add_audiocd"},
    {"Manually...", "dxxx_entry_add_manually"},
};

constexpr ToolButton kMainToolBar[] = {
    {"New", "xxxx_document_new", "Create New ZVX", {}},
    {"Load", "xxxx_document_open", "Opens a saved ZVX-Document", {}},
    {"Save", "dxxx_document_save", "Saves the current Document", {}},
    {"", "xxx_", "", {}, true},
    {"Options", "xxxx_document_options", "Displays the ZVX-Preferences-Dialogue", {}},
    {"Find", "dxxx_document_find", "Opens the Find-Entry-Dialgue", {}},
    {"Folder", "dxxx_folder_create", "", kFolderItems},
    {"Add", "dxxx_entry_add_wizard", "", kAddItems},
    {"Edit", "dexx_entry_editstart", "", {}},
    {"About", "xxxx_zvx_about", "Shows the info-dialogue", {}},
};

constexpr size_t kRequirementLength = 4;
constexpr size_t kTagPrefixLength = 5;  // the requirements and the "_"

}  // namespace

std::span<const ToolButton> MainToolBar() {
    return kMainToolBar;
}

std::string CommandOfTag(std::string_view tag) {
    if (tag.size() <= kTagPrefixLength)
        return {};
    return LowerCase(tag.substr(kTagPrefixLength));
}

bool ToolItemEnabled(std::string_view tag, const SelectionState& state, bool keepFolderItems,
                     bool currentlyEnabled) {
    const std::string required = LowerCase(tag.substr(0, kRequirementLength));
    if (required == "xxxx")
        return true;
    if (keepFolderItems && required.find('f') != std::string::npos)
        return currentlyEnabled;
    const auto needed =
        std::count_if(required.begin(), required.end(), [](char c) { return c != 'x'; });
    // A state text "0" is never found: requirements have no digits.
    const auto found = std::count_if(state.begin(), state.end(), [&](std::string_view text) {
        return required.find(LowerCase(text)) != std::string::npos;
    });
    return found >= needed;
}

}  // namespace zvx
