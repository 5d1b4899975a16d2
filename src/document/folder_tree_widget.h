#pragma once
// Shows a folder tree in a tree control: one item per node, in the tree's order.

#include <vector>

#include "document/folder_tree.h"

class QTreeWidget;
class QTreeWidgetItem;

namespace zvx {

// Clears the control and fills it; the items by node position.
std::vector<QTreeWidgetItem*> FillTreeWidget(QTreeWidget* widget, const FolderTree& tree);

// The node position of an item, -1 for none.
int NodeOfItem(const QTreeWidgetItem* item);

}  // namespace zvx
