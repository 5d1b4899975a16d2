// The folder commands of a document window.

#include <QTreeWidget>

#include "common/common.h"
#include "document/folder_navigation.h"
#include "document/folder_operations.h"
#include "document/folder_tree_widget.h"
#include "document/folderprops.h"
#include "document/frmDocument.h"
#include "document/moving.h"

namespace zvx {

void frmDocument::crefolder_Click() {
    folderprops dialog(common_, true, NewFolderProps(common_, !tree_.empty()), this);
    const std::optional<FolderDialogResult> result = dialog.showing();
    if (!result)
        return;
    applyFolderChange(CreateFolder(common_, cfn(), tree_, selectedFolder(), *result).changed);
}

void frmDocument::Folderprefs_Click() {
    const int node = selectedFolder();
    if (node < 0)
        return;
    folderprops dialog(common_, false, FolderPropsOf(tree_.nodes[static_cast<size_t>(node)]), this);
    const std::optional<FolderDialogResult> result = dialog.showing();
    if (!result)
        return;
    applyFolderChange(ChangeFolderProperties(common_, cfn(), tree_, node, *result).changed);
}

void frmDocument::delFolder_Click() {
    if (selectedFolder() < 0 || !ConfirmFolderDelete(common_))
        return;
    applyFolderChange(DeleteFolder(common_, cfn(), tree_, selectedFolder()).changed);
}

void frmDocument::movfolder_Click() {
    const int node = selectedFolder();
    if (node < 0)
        return;
    ShowPreparingFolderMove(common_);
    moving dialog(common_, MovingMode::Folder,
                  SetUpMoving(common_, cfn(), MovingMode::Folder, node), this);
    const std::string target = dialog.showing();
    const FolderNode& source = tree_.nodes[static_cast<size_t>(node)];
    const FolderChange change =
        extrememoving(common_, cfn(), tree_, source.fullPath, source.text, target);
    if (!change.changed)
        return;
    // The nodes go first, so that the rebuild selects the first folder; then the target
    // is selected and listed, once.
    filling_ = true;
    List2_->clear();
    items_.clear();
    filling_ = false;
    listak();
    selectPath(change.reselect);
    ShowEntries();
}

// After a change of the working copy: the tree and the list anew.
void frmDocument::applyFolderChange(bool changed) {
    if (changed)
        refresh_Click();
}

// pathextrude: selects, shows and expands the folder of the path (with its trailing ""),
// without listing it; no such folder leaves the selection alone.
void frmDocument::selectPath(const std::string& path) {
    const int node = pathextrude(tree_, path);
    if (node < 0 || static_cast<size_t>(node) >= items_.size())
        return;
    QTreeWidgetItem* item = items_[static_cast<size_t>(node)];
    filling_ = true;
    List2_->setCurrentItem(item);
    filling_ = false;
    List2_->scrollToItem(item);
    item->setExpanded(true);
    showCaption();
}

void frmDocument::expandmnu_Click() {
    common_.screen().status(kExpandingStatus);
    List2_->expandAll();
    common_.screen().status("");
}

void frmDocument::increasemnu_Click() {
    common_.screen().status(kCollapsingStatus);
    List2_->collapseAll();
    common_.screen().status("");
}

void frmDocument::expselmnu_Click() {
    common_.screen().status(kExpandingStatus);
    for (int node : SelectedBranch(tree_, selectedFolder()))
        items_[static_cast<size_t>(node)]->setExpanded(true);
    common_.screen().status("");
}

void frmDocument::incselmnu_Click() {
    common_.screen().status(kCollapsingStatus);
    for (int node : SelectedBranch(tree_, selectedFolder()))
        items_[static_cast<size_t>(node)]->setExpanded(false);
    common_.screen().status("");
}

}  // namespace zvx
