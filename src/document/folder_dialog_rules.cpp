#include "document/folder_dialog_rules.h"

#include "common/common.h"
#include "common/field_text.h"
#include "document/folder_icon_table.h"
#include "document/folder_refresh.h"
#include "store/settings.h"

namespace zvx {

namespace {

constexpr const char* kFolderPropModeKey = "LASTFOLDERPROPMODE";
constexpr const char* kMovingTargetKey = "LASTCMTARGET";

// A remembered option: 1 means Option1, anything else Option2.
bool RemembersOption1(const Common& common, const char* key) {
    return ReadSetting(common, key, 1.0).toNumber() == 1;
}

void StoreOption(const Common& common, const char* key, bool option1) {
    WriteSetting(common, key, option1 ? 1.0 : 2.0);
}

void Refuse(const Common& common, const std::string& text) {
    common.screen().message("Error", text, MsgButtons::OkOnly, MsgIcon::Critical);
}

std::string NotAllowed(const char* character, const char* where) {
    return std::string("The Character \"") + character + "\" is not allowed in the " + where + "!";
}

}  // namespace

FolderPropsSetup NewFolderProps(const Common& common, bool documentHasFolders) {
    FolderPropsSetup setup;
    setup.title = kNewFolderTitle;
    setup.name = kNewFolderName;
    setup.iconRow = 0;
    setup.showFrame = true;
    setup.option1Enabled = documentHasFolders;
    setup.subFolder = documentHasFolders && RemembersOption1(common, kFolderPropModeKey);
    return setup;
}

FolderPropsSetup FolderPropsOf(const FolderNode& node) {
    FolderPropsSetup setup;
    setup.title = kFolderPropertiesTitle;
    setup.name = node.text;
    setup.description = node.description();
    setup.iconRow = FolderIconRow(node.icon);
    return setup;
}

std::string FolderNameAsTyped(std::string_view text) {
    return std::string(LTrim(CleanFieldText(text)));
}

bool CheckFolderProps(const Common& common, std::string_view name, std::string_view description,
                      int iconRow) {
    if (name.find('\\') != std::string_view::npos) {
        Refuse(common, NotAllowed("\\", "Folder-name"));
    } else if (name.find('*') != std::string_view::npos) {
        Refuse(common, NotAllowed("*", "Folder-name"));
    } else if (description.find('*') != std::string_view::npos) {
        Refuse(common, NotAllowed("*", "Folder-Description"));
    } else if (name.empty()) {
        Refuse(common, "The Folder-name must have at least 1 charater!");
    } else if (iconRow < 0 || iconRow >= static_cast<int>(FolderIconTable().size())) {
        Refuse(common, "Please select an Icon!");
    } else {
        return true;
    }
    return false;
}

std::optional<FolderDialogResult> FolderPropsOk(const Common& common, bool newFolder,
                                                std::string_view name, std::string_view description,
                                                int iconRow, bool subFolder) {
    std::string typed = FolderNameAsTyped(name);
    if (!CheckFolderProps(common, typed, description, iconRow))
        return std::nullopt;
    if (newFolder)
        StoreOption(common, kFolderPropModeKey, subFolder);
    return FolderDialogResult{typed, std::string(description), FolderIconTable()[iconRow].number,
                              newFolder && subFolder};
}

MovingSetup SetUpMoving(Common& common, const std::filesystem::path& workingCopy, MovingMode mode,
                        int documentSelected) {
    // The chooser's tree is a rebuild of its own, told to the plug-ins as the document's is.
    common.PLUGSTART("ZVXREFRESHF");
    common.screen().status(kMovingStatus);
    MovingSetup setup;
    setup.tree = LoadFolderTree(common, workingCopy);
    common.setProgress(0);
    common.screen().status("");
    if (documentSelected >= 0 && documentSelected < setup.tree.size())
        setup.selected = documentSelected;
    if (mode == MovingMode::Folder) {
        setup.showFrame = true;
        setup.subFolderTarget = RemembersOption1(common, kMovingTargetKey);
        if (setup.selected >= 0)
            RemoveChildren(setup.tree, setup.selected);
    }
    return setup;
}

std::string MovingTarget(MovingMode mode, const FolderTree& tree, int selected,
                         bool subFolderTarget) {
    bool rootTarget = mode == MovingMode::Folder && !subFolderTarget;
    if (!rootTarget && (selected < 0 || selected >= tree.size()))
        return "";
    std::string target;
    if (mode == MovingMode::Entry)
        target = tree.nodes[selected].id();
    else
        target = rootTarget ? "\\" : tree.nodes[selected].fullPath;
    if (!target.ends_with('\\'))
        target += '\\';
    return target;
}

void StoreMovingChoice(const Common& common, bool subFolderTarget) {
    StoreOption(common, kMovingTargetKey, subFolderTarget);
}

}  // namespace zvx
