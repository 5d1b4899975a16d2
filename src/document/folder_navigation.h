#pragma once
// Finding, expanding and collapsing folders of the tree, and the collapse event.
//
// Expand all sets every node expanded in node order, with List2 hidden meanwhile, under
// kExpandingStatus; collapse all is its mirror under kCollapsingStatus with List2 left
// visible. Expand and collapse selected work the same on SelectedBranch. All four clear
// the status text at the end and do nothing on an empty tree.

#include <string_view>
#include <vector>

#include "document/folder_tree.h"

namespace zvx {

inline constexpr const char* kExpandingStatus = "Expanding Folder(s)...";
inline constexpr const char* kCollapsingStatus = "Collapsing Folder(s)...";

// pathextrude: the first node whose FullPath plus "\" equals the path (which has a
// trailing "\"), compared in lower case; -1 when none does, which leaves the selection
// alone. The found node is selected, made visible and expanded.
int pathextrude(const FolderTree& tree, std::string_view path);

// The nodes whose FullPath begins with the selected node's, compared in lower case, in
// node order, and then the selected node itself. The plain prefix also takes a sibling
// whose name begins with the selected name. Empty when nothing is selected.
std::vector<int> SelectedBranch(const FolderTree& tree, int selected);

// The collapse of a node hides the folder on show when its path (Label1's Tag) is longer
// than the node's FullPath and begins with it; the window then applies the editor's
// changes, runs folderstats and shows the entries.
bool CollapseHidesShownFolder(std::string_view shownPath, std::string_view nodePath);

}  // namespace zvx
