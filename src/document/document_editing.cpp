// The entry editor of a document window, tab 2 of Tabthing.

#include <QItemSelectionModel>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTreeView>
#include <exception>
#include <unordered_set>

#include "common/common.h"
#include "document/editor_apply.h"
#include "document/editor_choices.h"
#include "document/entry_editor.h"
#include "document/entry_list_model.h"
#include "document/frmDocument.h"

namespace zvx {

namespace {
constexpr int kEditorTab = 1;
}

void frmDocument::buildEditor() {
    editor_ = new EntryEditor;
    Tabthing_->addTab(editor_, "Editor");
    connect(Tabthing_, &QTabWidget::currentChanged, this, [this] { Tabthing_Click(); });
    connect(editor_, &EntryEditor::edited, this, [this] { EditorChanged_ = true; });
    connect(editor_, &EntryEditor::backClicked, this, [this] {
        --editorMemory_.EditorPosition;
        EditorRefresh();
    });
    connect(editor_, &EntryEditor::nextClicked, this, [this] {
        ++editorMemory_.EditorPosition;
        EditorRefresh();
    });
    connect(editor_, &EntryEditor::selectedOnlySwitchedOff, this, [this] {
        editorMemory_.EditorPosition = editorMemory_.EditorRow;
        EditorRefresh();
    });
    connect(editor_, &EntryEditor::jumpListOpened, this, [this] {
        editor_->showJumpList(JumpList(
            editedLines(), [this](std::string_view line) { return buffers_.contains(line); }));
    });
    connect(editor_, &EntryEditor::jumpTo, this, [this](long position) {
        editorMemory_.EditorPosition = position;
        EditorRefresh();
    });
    connect(editor_, &EntryEditor::forgetClicked, this, &frmDocument::forgetChanges);
    connect(editor_, &EntryEditor::applyLocksClicked, this, &frmDocument::applyLockedSelection);
}

bool frmDocument::editorOnShow() const {
    return Tabthing_->currentIndex() == kEditorTab;
}

void frmDocument::Tabthing_Click() {
    if (!editorOnShow()) {
        applyEditorChanges();
        return;
    }
    if (!editor_->initialised())
        EditorInit();
    const std::vector<int> selected = selectedRowNumbers();
    if (selected.size() == 1)
        editorMemory_.EditorPosition = selected.front();
    EditorRefresh();
}

void frmDocument::entry_editstart() {
    if (editorOnShow())
        Tabthing_Click();
    else
        Tabthing_->setCurrentIndex(kEditorTab);
}

// The list is hidden meanwhile, so that it is not drawn for nothing.
void frmDocument::editEntries(bool selectedOnly) {
    views_->hide();
    {
        const QSignalBlocker quiet(Tabthing_);
        Tabthing_->setCurrentIndex(kEditorTab);
    }
    // Check15 switched off goes on from the row on show, as its click does.
    if (editor_->selectedOnly() && !selectedOnly)
        editorMemory_.EditorPosition = editorMemory_.EditorRow;
    editor_->setSelectedOnly(selectedOnly);
    Tabthing_Click();
    views_->show();
}

void frmDocument::EditorInit() {
    common_.screen().status("Initializing Editor...");
    const std::vector<std::string> styles = ReadStyles(common_);
    editor_->fillChoices(FileTypeChoices(common_.settings), styles);
    common_.screen().status("");
}

// The 1-based numbers of the selected rows, in list order.
std::vector<int> frmDocument::selectedRowNumbers() const {
    std::vector<int> rows;
    const QItemSelectionModel* selection = ListView1_->selectionModel();
    for (int row = 0; row < model_->rowCount(); ++row) {
        if (selection->isRowSelected(row, {}))
            rows.push_back(row + 1);
    }
    return rows;
}

// The lines of the rows being edited, in list order.
std::vector<std::string_view> frmDocument::editedLines() const {
    std::vector<std::string_view> lines;
    if (editor_->selectedOnly()) {
        for (int row : selectedRowNumbers())
            lines.push_back(model_->lineAt(row - 1));
        return lines;
    }
    for (int row = 0; row < model_->rowCount(); ++row)
        lines.push_back(model_->lineAt(row));
    return lines;
}

// Shows the row at EditorPosition. A failure leaves the form as it stands.
void frmDocument::EditorRefresh() {
    try {
        Editor_Temp_ApplyChanges();
        EditorListing listing;
        const FolderNode* node = selectedNode();
        listing.folderPath = node ? node->fullPath : std::string();
        listing.rowCount = model_->rowCount();
        listing.selectedOnly = editor_->selectedOnly();
        if (listing.selectedOnly)
            listing.selectedRows = selectedRowNumbers();
        const EditorPlace place = PlaceEditor(editorMemory_, listing);
        editorMemory_.EditorPosition = place.position;
        EditorForm form = editor_->form();
        if (place.count > 0) {
            std::string line(model_->lineAt(place.row - 1));
            const std::string* changed = buffers_.empty() ? nullptr : buffers_.newLineFor(line);
            if (changed)
                line = *changed;
            editor_->showChanges(ChangesCaption(buffers_.size()), !buffers_.empty());
            editor_->showPlace(EntryCaption(place.position, place.count, changed != nullptr),
                               place.backEnabled, place.nextEnabled);
            FillForm(form, line, common_.settings.renumberingLevel);
            editorMemory_.EditorLastPosition = place.position;
        } else {
            ClearForm(form);
        }
        editor_->showForm(form);
        editorMemory_.EditorFolder = listing.folderPath;
        editorMemory_.EditorCount = std::to_string(listing.rowCount);
        editorMemory_.EditorRow = place.row;
        editor_->enableFrames(place.count > 0);
        EditorChanged_ = false;
    } catch (const std::exception&) {
        return;
    }
}

// Takes the form into the change buffers for the row on show, once something was
// touched since it was shown.
void frmDocument::Editor_Temp_ApplyChanges() {
    const int row = editorMemory_.EditorRow;
    if (!EditorChanged_ || row == 0 || row > model_->rowCount())
        return;
    TempApply(common_, buffers_, model_->lineAt(row - 1), editor_->form().texts,
              common_.settings.renumberingLevel);
}

// Editor_Final_Apply_Changes: the row on show into the buffers, the buffers into the
// working copy. The form then holds nothing that is not buffered, so the changed flag
// goes down: a later apply must not take the form for a row the list no longer holds
// at its place. `selectedLines` receives the lines the selected rows have afterwards.
// True when the working copy was rewritten.
bool frmDocument::applyEditorChanges(std::vector<std::string>* selectedLines) {
    EditorChanged_ = true;
    Editor_Temp_ApplyChanges();
    EditorChanged_ = false;
    if (buffers_.empty())
        return false;
    if (selectedLines) {
        for (int row : selectedRowNumbers()) {
            const std::string_view line = model_->lineAt(row - 1);
            const std::string* changed = buffers_.newLineFor(line);
            selectedLines->emplace_back(changed ? std::string_view(*changed) : line);
        }
    }
    editor_->setForgetEnabled(false);
    FinalApply(common_, cfn(), buffers_);
    if (!editorOnShow())
        ShowEntries();
    return true;
}

// The rows keep the lines they were listed with; after a rewrite behind the editor they
// are listed anew with the same rows selected, so that the editor goes on from the
// lines in the file.
void frmDocument::Editor_Final_Apply_Changes() {
    std::vector<std::string> selected;
    if (!editorOnShow() || !applyEditorChanges(&selected))
        return;
    listEntries();
    selectLines(selected);
    EditorRefresh();
}

void frmDocument::selectLines(const std::vector<std::string>& lines) {
    const std::unordered_set<std::string_view> wanted(lines.begin(), lines.end());
    auto isWanted = [&](int row) { return wanted.contains(model_->lineAt(row)); };
    QItemSelection selection;
    for (int row = 0; row < model_->rowCount(); ++row) {
        if (!isWanted(row))
            continue;
        const int first = row;
        while (row + 1 < model_->rowCount() && isWanted(row + 1))
            ++row;
        selection.select(model_->index(first, 0), model_->index(row, 0));
    }
    ListView1_->selectionModel()->select(
        selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void frmDocument::forgetChanges() {
    const MsgAnswer answer = common_.screen().message(
        "Forget changes...", "Are you sure that you want to lose all current editor-changes ?",
        MsgButtons::YesNo, MsgIcon::Question);
    if (answer != MsgAnswer::Yes)
        return;
    buffers_.clear();
    EditorChanged_ = false;
    EditorRefresh();
}

// Command11: the locked fields to every row being edited, then the locks come off.
void frmDocument::applyLockedSelection() {
    Editor_Temp_ApplyChanges();
    ApplyLockedSelection(common_, buffers_, editedLines(), editor_->form(),
                         common_.settings.renumberingLevel);
    EditorChanged_ = true;
    editor_->clearLocks();
    EditorRefresh();
}

}  // namespace zvx
