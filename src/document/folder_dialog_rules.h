#pragma once
// The rules of the two folder dialogs, so that the dialogs only show controls:
// folderprops (a new folder, or a folder's properties) and moving (the choice of a
// target folder). The modes they remember live in zvx.ini (LASTFOLDERPROPMODE,
// LASTCMTARGET: 1 for Option1, anything else for Option2, 1 by default).

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "document/folder_tree.h"

namespace zvx {

class Common;

// --- folderprops ---

inline constexpr const char* kNewFolderTitle = "Create New Folder...";
inline constexpr const char* kFolderPropertiesTitle = "Folder Properties";
inline constexpr const char* kNewFolderName = "New Empty Folder";
inline constexpr const char* kSubFolderOption = "Sub-Folder of the selected ZVX-folder";
inline constexpr const char* kRootFolderOption = "Root-Folder";

// What folderprops gives back (FolderDialogName, FolderDialogDescription,
// FolderDialogIcon, FolderDialogAsSubFolder). A cancelled dialog gives none.
struct FolderDialogResult {
    std::string name;
    std::string description;
    int icon = 10;
    bool asSubFolder = false;
};

// How folderprops opens.
struct FolderPropsSetup {
    std::string title;
    std::string name;         // Text1; selected for overtyping in new-folder mode
    std::string description;  // Text2
    int iconRow = -1;         // the selected row of ImageCombo1, -1 for none
    bool showFrame = false;   // Frame3 with Option1 and Option2
    bool option1Enabled = false;
    bool subFolder = false;  // Option1 chosen, else Option2
};

// New-folder mode: "New Empty Folder", no description, the first icon row. With folders
// in the document Option1 is enabled and the remembered mode chosen, without them
// Option2 is set and Option1 disabled.
FolderPropsSetup NewFolderProps(const Common& common, bool documentHasFolders);
// Properties mode: the node's name, description and the row of its icon.
FolderPropsSetup FolderPropsOf(const FolderNode& node);

// The name as Text1 holds it: a byte 01, CR or LF is a blank, as in the stored name,
// and leading blanks are lost as they are typed. The window and zvxcat both take a
// typed name through this.
std::string FolderNameAsTyped(std::string_view text);

// The OK button's checks, in order: no "\" or "*" in the name, no "*" in the
// description (a "\" is allowed there), a name of at least one character, an icon row.
// The first that fails is shown (title "Error", critical icon) and gives false.
bool CheckFolderProps(const Common& common, std::string_view name, std::string_view description,
                      int iconRow);

// The OK button: the checks on the name as typed, then the result. In new-folder mode the choice of
// Option1 or Option2 is stored as LASTFOLDERPROPMODE 1 or 2. A refusal gives none, and the dialog
// stays open.
std::optional<FolderDialogResult> FolderPropsOk(const Common& common, bool newFolder,
                                                std::string_view name, std::string_view description,
                                                int iconRow, bool subFolder);

// --- moving ---

inline constexpr const char* kMovingTitle = "Select Target Location";
inline constexpr const char* kMovingStatus = "Building Tree-View...";
inline constexpr const char* kTargetFrame = "Target-Selection:";
inline constexpr const char* kSubFolderTargetOption = "Sub-Folder of a selected ZVX-folder:";
inline constexpr const char* kRootTargetOption = "Root-Folder";

// The target of a folder move ("folder") or of a copy or move of entries ("entry").
enum class MovingMode { Folder, Entry };

// How moving opens. Option2 disables the tree, Option1 enables it.
struct MovingSetup {
    FolderTree tree;              // its own tree, from the document's working copy
    int selected = -1;            // the position of the document's selected folder
    bool showFrame = false;       // Frame3, in mode "folder" only
    bool subFolderTarget = true;  // Option1 chosen, else Option2
};

// Fires ZVXREFRESHF and builds the dialog's tree from the working copy under "Building
// Tree-View...", selects the document's selected folder (`documentSelected`, -1 for none),
// and in mode "folder" chooses the remembered option and removes the selected folder's
// descendants from the tree, so that no folder below the source can be chosen.
MovingSetup SetUpMoving(Common& common, const std::filesystem::path& workingCopy, MovingMode mode,
                        int documentSelected);

// The OK button: MoveTarget. In mode "entry" the folder ID of the selected node, in mode
// "folder" "\" for Option2 and else the selected node's FullPath; a trailing "\" is
// added in both modes. Empty, like a cancel, when no node is selected where one is
// needed.
std::string MovingTarget(MovingMode mode, const FolderTree& tree, int selected,
                         bool subFolderTarget);

// Closing the dialog in mode "folder" stores the choice as LASTCMTARGET 1 or 2.
void StoreMovingChoice(const Common& common, bool subFolderTarget);

}  // namespace zvx
