#pragma once
// The folder tree of a document (List2) as plain data, built from the TOC records of the
// working copy. The working copy is the only truth: after every change the tree is built
// again from it, and the tree itself is never saved.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "store/toc.h"

namespace zvx {

// One node as the tree control holds it.
struct FolderNode {
    std::string key;       // "#" followed by the folder ID
    std::string text;      // the last component of the folder's path
    int icon = 0;          // Image and SelectedImage: the icon number
    std::string tag;       // the description followed by the 8-digit folder ID
    int parent = -1;       // position of the parent node, -1 for a root folder
    std::string fullPath;  // the texts from the root down joined by "\", no trailing "\"

    // The last eight characters of the tag.
    std::string id() const;
    // The tag without its last eight characters.
    std::string description() const;
};

// The nodes in the order they were added: a node's Index in the tree control is its
// position plus 1, and a parent always stands before its children.
struct FolderTree {
    std::vector<FolderNode> nodes;

    bool empty() const { return nodes.empty(); }
    int size() const { return static_cast<int>(nodes.size()); }
};

// LeafName: the last component of a path, after one trailing "\" is stripped.
std::string LeafName(std::string_view path);

// The records in the order of the sorted list puflist: by the path line in plain byte
// order, then by the description line and the ID line. A folder thus stands directly
// before all its descendants.
std::vector<TocGroup> SortPuflist(std::vector<TocGroup> groups);

// BuildTreeLevel over all of puflist: sorts the records and adds a node for each, under
// the folder whose path its path begins with. The ID of a record is the last eight
// characters of its three lines joined by line feeds, the icon number its description
// line's last character less 40. Prefix tests are case-sensitive.
// A record whose parent record is missing goes under the folder added last on the
// deepest level its path begins with, else under that level's folder; at the top with
// no folder added yet it becomes a root folder.
// A record whose key is already in the tree is left out, as the tree control refuses a
// second node with one key. `progress` gets the 1-based index of the next record after
// each record. Any records, however garbled, give a tree.
FolderTree BuildFolderTree(const std::vector<TocGroup>& groups,
                           const std::function<void(long long)>& progress = {});

// Removes every descendant of the node from the tree; the node itself stays.
void RemoveChildren(FolderTree& tree, int node);

}  // namespace zvx
