// The document's side of the search window: opening it, preparing its files, and the
// jump from a result row to the entry.

#include <QItemSelectionModel>
#include <QTreeView>
#include <QTreeWidget>

#include "common/common.h"
#include "document/entry_editor.h"
#include "document/entry_list_model.h"
#include "document/frmDocument.h"
#include "exchange/export_prep.h"
#include "finding/search_preparation.h"
#include "finding/searcher_rules.h"

namespace zvx {

void frmDocument::searchmnu_Click() {
    common_.searchSplitMode = false;
    SearchInit();
    if (onSearch)
        onSearch(caption());
}

std::optional<SearchFolder> frmDocument::selectedSearchFolder() const {
    if (const FolderNode* node = selectedNode())
        return SearchFolder{node->fullPath, node->id()};
    return std::nullopt;
}

void frmDocument::SearchInit() {
    Editor_Final_Apply_Changes();
    zvx::SearchInit(common_, cfn(), common_.searchSplitMode, selectedSearchFolder());
}

void frmDocument::prepareExport(ExportSource source) {
    Editor_Final_Apply_Changes();
    PrepareExportFile(common_, cfn(), source, selectedSearchFolder(), ExportFilePath(common_));
}

bool frmDocument::showSearchHit(std::string_view folderText, std::string_view tag) {
    const std::optional<int> node = JumpNode(tree_, folderText);
    if (!node)
        return false;
    QTreeWidgetItem* item = items_[static_cast<size_t>(*node)];
    filling_ = true;
    List2_->setCurrentItem(item);
    filling_ = false;
    List2_->scrollToItem(item);
    showCaption();
    ShowEntries();

    QItemSelection selection;
    int shown = -1;
    for (int row = 0; row < model_->rowCount(); ++row) {
        if (model_->lineAt(row) != tag)
            continue;
        selection.select(model_->index(row, 0), model_->index(row, 0));
        if (shown < 0)
            shown = row;
    }
    QItemSelectionModel* selected = ListView1_->selectionModel();
    selected->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (shown >= 0) {
        selected->setCurrentIndex(model_->index(shown, 0), QItemSelectionModel::NoUpdate);
        ListView1_->scrollTo(model_->index(shown, 0));
    }
    if (onSelectionChanged)
        onSelectionChanged();
    if (editorOnShow()) {
        editor_->setSelectedOnly(true);
        EditorRefresh();
    }
    return true;
}

}  // namespace zvx
