#pragma once
// The folder caption line of a document window (Label1): which folder is on show.

#include <string>
#include <string_view>

#include "document/folder_tree.h"

namespace zvx {

struct FolderCaption {
    std::string caption;  // Label1's caption, also its tool tip
    std::string tag;      // Label1's Tag: the FullPath of the folder on show, or empty
};

// status2: "Folder: " followed by the text.
std::string status2(std::string_view text);

// folderstats: the selected folder's FullPath, followed by " (" + description + ")" when
// its Tag is longer than the eight characters of the ID; "Folder: None" and an empty Tag
// when no node is selected, which includes an empty tree.
FolderCaption folderstats(const FolderTree& tree, int selected);

}  // namespace zvx
