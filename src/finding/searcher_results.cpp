// The search window's result actions: a new search, the removal from the result, the
// folders of the rows, Clear, Export, the jump, the sort and the selection info.

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeView>
#include <algorithm>
#include <unordered_map>

#include "common/common.h"
#include "common/summary_text.h"
#include "document/document_table.h"
#include "document/entry_rows.h"
#include "document/frmDocument.h"
#include "finding/result_row.h"
#include "finding/search_result_model.h"
#include "finding/search_run.h"
#include "finding/searcher.h"
#include "store/catalogue_format.h"
#include "ui/text_codec.h"

namespace zvx {

namespace {
constexpr int kFolderColumn = 2;
constexpr int kSizeField = 2;
}  // namespace

void searcher::Command1_Click() {
    run([this] {
        listTag_ = FromQString(Combo3_->currentText());
        searchKind_ = 1;
        searchRun(false);
    });
}

void searcher::FlatBttn2_Click() {
    if (model_->rowCount() == 0)
        return;
    run([this] {
        searchKind_ = 2;
        searchRun(true);
    });
}

SearchSourceOption searcher::sourceOption() const {
    if (Option1_->isChecked())
        return SearchSourceOption::Entire;
    return Option2_->isChecked() ? SearchSourceOption::SubTree : SearchSourceOption::Folder;
}

// The list is hidden while the run adds its rows, and shown by run() afterwards.
void searcher::searchRun(bool removal) {
    SearchSettings settings;
    settings.field = Combo1_->currentIndex();
    settings.comparison = Combo2_->currentIndex() + 1;
    settings.mode = static_cast<WordMode>(Combo4_->currentIndex());
    settings.caseSensitive = Check3_->isChecked();
    settings.text = FromQString(Text1_->text());
    const SearchSourceOption option = sourceOption();

    ListView1_->hide();
    model_->setRows({});
    EntryRows rows;
    std::string tag;
    const ShowEntry showEntry = [&](std::string_view tail, std::string_view folderId) {
        tag.assign(folderId);
        tag += tail;
        rows.add(tag);
    };
    if (removal)
        RemoveFromResult(common_, option, settings, showEntry);
    else
        NewSearch(common_, option, settings, showEntry);
    model_->setRows(std::move(rows));
    resolveFolders(SearchSourceFile(common_, option));
    common_.setProgress(0);
    common_.screen().status("");
    showCount();
    listclickinfo();
}

// "ZVX-Folder" of each row in list order, with the progress; rows of one folder share
// its text.
void searcher::resolveFolders(const std::filesystem::path& source) {
    const EntryRows& rows = model_->rows();
    if (rows.empty())
        return;
    const FolderResolver resolver(source);
    std::unordered_map<std::string_view, uint32_t> known;
    std::vector<std::string> folders;
    std::vector<uint32_t> folderOfRow(rows.size());
    common_.setProgressMax(static_cast<long long>(rows.size()));
    for (size_t row = 0; row < rows.size(); ++row) {
        common_.setProgress(static_cast<long long>(row + 1));
        const std::string_view folderId = rows.line(row).substr(0, kFolderIdLength);
        auto [at, added] = known.try_emplace(folderId, static_cast<uint32_t>(folders.size()));
        if (added)
            folders.push_back(resolver.resolva(folderId));
        folderOfRow[row] = at->second;
    }
    model_->setFolders(std::move(folderOfRow), std::move(folders));
}

void searcher::showCount() {
    Label1_->setText(ToQString(FoundText(static_cast<size_t>(model_->rowCount()))));
}

void searcher::FlatBttn1_Click() {
    run([this] {
        ClearResult(common_);
        model_->setRows({});
        showCount();
        listclickinfo();
    });
}

// The export dialog takes export.tmp; until it exists the copy is all there is.
void searcher::Command4_Click() {
    run([this] {
        if (CopyResultForExport(common_) && onExport)
            onExport();
    });
}

void searcher::FlatBttn4_Click() {
    run([this] {
        frmDocument* document = nullptr;
        for (frmDocument* open : openDocuments()) {
            if (open->caption() == listTag_) {
                document = open;
                break;
            }
        }
        const int row = FlatBttn4_->property("Tag").toString().toInt() - 1;
        if (!document || row < 0 || row >= model_->rowCount())
            return;
        if (!document->showSearchHit(model_->textAt(row, kFolderColumn), model_->tagAt(row)))
            return;
        if (auto* window = qobject_cast<QMdiSubWindow*>(document->parentWidget()))
            window->mdiArea()->setActiveSubWindow(window);
        document->setFocus();
    });
}

void searcher::listclickinfo() {
    SelectionTotals totals;
    const QItemSelectionModel* selection = ListView1_->selectionModel();
    for (int row = 0; row < model_->rowCount(); ++row)
        totals.add(EntryItem(model_->tagAt(row), kSizeField), selection->isRowSelected(row, {}));
    showJumpRow();
    if (onSummary)
        onSummary(summarize(totals));
}

// FlatBttn4's tag: the number of the first selected row, empty when none is.
void searcher::showJumpRow() {
    int first = model_->rowCount();
    for (const QItemSelectionRange& range : ListView1_->selectionModel()->selection())
        first = std::min(first, range.top());
    FlatBttn4_->setProperty("Tag",
                            first < model_->rowCount() ? QString::number(first + 1) : QString());
}

// A sort starts the selection afresh, and with it FlatBttn4's row.
void searcher::sortBy(int column) {
    ColumnClick(sort_, column);
    model_->setOrder(SortedRowOrder(
        model_->rows().size(), [this, column](size_t line) { return model_->text(line, column); },
        sort_.SortOrder));
    ListView1_->header()->setSortIndicatorShown(true);
    ListView1_->header()->setSortIndicator(sort_.SortKey, sort_.SortOrder == kSortAscending
                                                              ? Qt::AscendingOrder
                                                              : Qt::DescendingOrder);
    listclickinfo();
}

}  // namespace zvx
