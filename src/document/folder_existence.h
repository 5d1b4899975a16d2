#pragma once
// The test of new and renamed folders against the folders already in the tree.

#include <string_view>

#include "document/folder_tree.h"

namespace zvx {

class Common;

// True when a node's FullPath equals the path in lower case; then shows "The Folder
// "path" does already exist!" (title "Error", critical icon).
bool RefuseExistingFolder(const Common& common, const FolderTree& tree, std::string_view path);

}  // namespace zvx
