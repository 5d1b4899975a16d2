#include "document/folder_tree_widget.h"

#include <QTreeWidget>

#include "ui/folder_icons.h"
#include "ui/text_codec.h"

namespace zvx {

namespace {
constexpr int kNodeRole = Qt::UserRole + 1;
}

std::vector<QTreeWidgetItem*> FillTreeWidget(QTreeWidget* widget, const FolderTree& tree) {
    widget->clear();
    std::vector<QTreeWidgetItem*> items;
    items.reserve(tree.nodes.size());
    for (int i = 0; i < tree.size(); ++i) {
        const FolderNode& node = tree.nodes[static_cast<size_t>(i)];
        auto* item = node.parent >= 0 ? new QTreeWidgetItem(items[static_cast<size_t>(node.parent)])
                                      : new QTreeWidgetItem(widget);
        item->setText(0, ToQString(node.text));
        item->setIcon(0, FolderIcon(node.icon));
        item->setToolTip(0, ToQString(node.description()));
        item->setData(0, kNodeRole, i);
        items.push_back(item);
    }
    return items;
}

int NodeOfItem(const QTreeWidgetItem* item) {
    return item ? item->data(0, kNodeRole).toInt() : -1;
}

}  // namespace zvx
