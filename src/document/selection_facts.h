#pragma once
// What a document's list and tree hold at a change of its selection: the facts the
// main window's menu and tool bar states are made from.

namespace zvx {

struct SelectionFacts {
    bool hasRows = false;         // the list has at least one row
    bool rowSelected = false;     // a row of the list is selected
    bool hasFolders = false;      // the tree has folders
    bool folderSelected = false;  // a folder of the tree is selected
};

}  // namespace zvx
