#pragma once
// The test of new and renamed folders against the folders already in the tree, and the
// rule by which two folder paths are one: compared as they are stored (a byte 01, CR or
// LF is a blank there), each name read by the code-page rule (UTF-8 when valid, else
// Windows-1252), without regard to case. So a Windows-1252 "Über" and a UTF-8 "über"
// are one name.

#include <string>
#include <string_view>

#include "document/folder_tree.h"

namespace zvx {

class Common;

// The form in which folder paths are compared.
std::string FolderPathKey(std::string_view path);
bool SameFolderPath(std::string_view a, std::string_view b);

// True when a node's FullPath is the path as it will be stored; then shows "The Folder
// "path" does already exist!" (title "Error", critical icon), with the stored path.
bool RefuseExistingFolder(const Common& common, const FolderTree& tree, std::string_view path);

}  // namespace zvx
