// The entry commands of a document window: copy and move the selected entries to
// another folder, and delete them.

#include <QStackedWidget>

#include "common/common.h"
#include "document/copy_move.h"
#include "document/entry_list_model.h"
#include "document/frmDocument.h"
#include "document/moving.h"

namespace zvx {

void frmDocument::copymnumnu_Click() {
    copyOrMove(EntryCopyMode::Copy);
}

void frmDocument::movemnumnu_Click() {
    copyOrMove(EntryCopyMode::Move);
}

SelectedRows frmDocument::selectedRows() const {
    SelectedRows rows;
    for (int row : selectedRowNumbers())
        rows.add(model_->lineAt(row - 1));
    return rows;
}

// Edits waiting in the editor are written before the entries are copied, moved or
// deleted, so that they go with them; the rows still match, since the editor never
// changes the fields the match compares.
void frmDocument::copyOrMove(EntryCopyMode mode) {
    moving dialog(common_, MovingMode::Entry,
                  SetUpMoving(common_, cfn(), MovingMode::Entry, selectedFolder()), this);
    const std::string MoveTarget = dialog.showing();
    if (MoveTarget.empty())
        return;
    const bool listHasRows = model_->rowCount() > 0;
    const SelectedRows selected = selectedRows();
    if (!listHasRows) {
        CopyMove(common_, cfn(), mode, MoveTarget, selected, listHasRows);
        return;
    }
    if (editorOnShow())
        applyEditorChanges();
    // A failure leaves the list hidden until the next run of an entry command.
    views_->hide();
    CopyMove(common_, cfn(), mode, MoveTarget, selected, listHasRows);
    views_->show();
    ShowEntries();
}

void frmDocument::remdelmnumnu_Click() {
    if (model_->rowCount() == 0 || !ConfirmEntryDelete(common_))
        return;
    const SelectedRows selected = selectedRows();
    if (editorOnShow())
        applyEditorChanges();
    views_->hide();
    DeleteEntries(common_, cfn(), selected);
    views_->show();
    ShowEntries();
}

}  // namespace zvx
