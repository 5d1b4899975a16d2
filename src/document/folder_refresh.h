#pragma once
// The rebuild of the folder tree (listak), as far as it is not the window's: reading the
// working copy with its event, texts and progress, and which node is selected afterwards.
//
// The window's part: apply the editor's changes if its tab is on show, remember the
// selected node's position, hide List2, call listak, fill List2 from the tree, select and
// expand by SelectAfterRefresh, show List2 unless TreeHidden, set the progress value to
// 0, show folderstats, clear the status text and update the menus.

#include <filesystem>

#include "document/folder_tree.h"

namespace zvx {

class Common;

inline constexpr const char* kRefreshFolderStatus = "Refreshing Folder View...";

// Reads the TOC of the working copy up to its empty line and builds the tree. The
// progress bar runs from 0 to the number of records plus 1 and is left at its end.
FolderTree LoadFolderTree(Common& common, const std::filesystem::path& workingCopy);

// Fires ZVXREFRESHF, shows "Refreshing Folder View..." and loads the tree.
FolderTree listak(Common& common, const std::filesystem::path& workingCopy);

struct RefreshSelection {
    int node = -1;        // position of the node to select; -1 for an empty tree
    bool expand = false;  // expand the selected node
};

// The node to select after a rebuild. `remembered` is the position of the node selected
// before it, -1 when the tree had no nodes: the same position is selected again, which
// after folders came or went can be another folder; below 0 the first node, beyond the
// last node the last one. With nodes, a set ExpandAfterRefresh expands the selection
// and is cleared.
RefreshSelection SelectAfterRefresh(Common& common, int remembered, const FolderTree& tree);

}  // namespace zvx
