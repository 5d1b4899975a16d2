#pragma once
// The changes of folders in a document's working copy: a new folder, deleting a folder
// with its sub-folders and entries, a folder's properties (renaming included), and
// moving a folder. Each rewrites the working copy through tempfile.tmp and updates its
// entry offset, which marks the document changed; the window then rebuilds the tree.
// Refusals are messages and leave the working copy alone. `tree` and `selected` are the
// window's tree and the position of its selected node.

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

#include "document/folder_dialog_rules.h"
#include "document/folder_tree.h"

namespace zvx {

class Common;

// The most IDs the delete folder operation can collect; a deletion of more folders fails
// with FolderListFull before anything is written.
inline constexpr size_t kDeadIdLimit = 64001;

class FolderListFull : public std::length_error {
  public:
    FolderListFull() : std::length_error("more than 64001 folders to delete") {}
};

struct FolderChange {
    bool changed = false;  // the working copy was rewritten
    std::string id;        // a new folder: its ID
    // extrememoving: MoveTarget, for pathextrude (movfolder_Click) or PathToReselect (a
    // drag); empty for the root.
    std::string reselect;
};

// crefolder_Click once the dialog was answered: the new path is the selected FullPath +
// "\" + name for a sub-folder (which sets ExpandAfterRefresh) and the name alone for a
// root folder; a path that exists already (SameFolderPath) is refused with "The Folder
// "..." does already exist!". The folder gets the lowest free ID, its record is written
// behind the last one, and FOLDERCREATE is fired.
FolderChange CreateFolder(Common& common, const std::filesystem::path& workingCopy,
                          const FolderTree& tree, int selected, const FolderDialogResult& dialog);

// delFolder_Click's question; true on Yes.
bool ConfirmFolderDelete(const Common& common);

// delFolder_Click after the question: drops the records whose path begins with the
// selected path (compared in lower case, both with a trailing "\"), then every entry
// line whose first eight characters are one of their IDs (empty lines stay), and fires
// ZVXFOLDERDEL. The window then removes the node, rebuilds and shows the entries.
// Nothing to do without a selected node.
FolderChange DeleteFolder(Common& common, const std::filesystem::path& workingCopy,
                          const FolderTree& tree, int selected);

// Folderprefs_Click once the dialog was answered. The new path is the parent path +
// name; a new name that is not the old one in another case (SameFolderPath) must not
// exist. Every record whose
// path line begins with the old path (case-sensitive, no separator in the test) gets the
// new path, so that renaming Music also turns a sibling Music2\ into the child 2 of the
// renamed folder. The records with the selected folder's ID get the new description
// and icon. Fires no event.
FolderChange ChangeFolderProperties(Common& common, const std::filesystem::path& workingCopy,
                                    const FolderTree& tree, int selected,
                                    const FolderDialogResult& dialog);

// movfolder_Click's status text while the dialog is prepared.
void ShowPreparingFolderMove(const Common& common);

// extrememoving, and movfolder_Click after its dialog: moves the folder at
// `sourcePath` (its FullPath) with its sub-folders into `moveTarget` (a FullPath with a
// trailing "\", or "\" for the root). Refused when the target holds a folder of the same
// name (tested first, so an empty target of a cancelled dialog with a root folder selected
// is refused too), when the target is empty, when the target is the folder's parent, and
// when it lies inside the folder. Rewrites the TOC paths only and fires ZVXFOLDERMOVE.
FolderChange extrememoving(Common& common, const std::filesystem::path& workingCopy,
                           const FolderTree& tree, std::string_view sourcePath,
                           std::string_view leafName, std::string moveTarget);

}  // namespace zvx
