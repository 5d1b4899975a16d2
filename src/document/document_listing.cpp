// The entry list of a document window: listing, styles, columns, sorting, summary.

#include <QAction>
#include <QHeaderView>
#include <QListView>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>

#include "common/common.h"
#include "common/summary_text.h"
#include "document/column_header.h"
#include "document/column_layout.h"
#include "document/entry_list_model.h"
#include "document/frmDocument.h"
#include "document/list_appearance_view.h"
#include "platform/file_error.h"

namespace zvx {

void frmDocument::buildList() {
    model_ = new EntryListModel(common_.settings, this);
    views_ = new QStackedWidget;
    ListView1_ = new QTreeView;
    ListView1_->setObjectName("ListView1");
    ListView1_->setRootIsDecorated(false);
    ListView1_->setUniformRowHeights(true);
    ListView1_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    ListView1_->setModel(model_);
    ListView1_->header()->setSectionsMovable(true);
    ListView1_->header()->setSectionsClickable(true);
    iconView_ = new QListView;
    iconView_->setObjectName("ListView1Icons");
    iconView_->setModel(model_);
    iconView_->setSelectionModel(ListView1_->selectionModel());
    iconView_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    iconView_->setResizeMode(QListView::Adjust);
    views_->addWidget(ListView1_);
    views_->addWidget(iconView_);
    Tabthing_->addTab(views_, "Entries");

    const ListAppearance look = ReadListAppearance(common_);
    ApplyListAppearance(ListView1_, look);
    ApplyListAppearance(iconView_, look);

    // Timer1: a burst of selection changes is summed up once.
    Timer1_ = new QTimer(this);
    Timer1_->setObjectName("Timer1");
    Timer1_->setSingleShot(true);
    Timer1_->setInterval(0);
    connect(Timer1_, &QTimer::timeout, this, &frmDocument::summarize);
    connect(ListView1_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        Timer1_->start();
        if (onSelectionChanged)
            onSelectionChanged();
    });
    connect(ListView1_->header(), &QHeaderView::sectionClicked, this,
            [this](int logical) { sortBy(logical + 1); });
    auto execute = [this] {
        if (coreCalls)
            coreCalls("entry_execute");
        if (onSelectionChanged)
            onSelectionChanged();
    };
    for (QAbstractItemView* view : {static_cast<QAbstractItemView*>(ListView1_),
                                    static_cast<QAbstractItemView*>(iconView_)}) {
        // Delete removes the selected entries when the menu offers it.
        auto* deleteKey = new QShortcut(QKeySequence(Qt::Key_Delete), view);
        deleteKey->setContext(Qt::WidgetShortcut);
        connect(deleteKey, &QShortcut::activated, this, [this] {
            if (menuEnabled && coreCalls && menuEnabled("foldermnu7"))
                coreCalls("foldermnu7");
        });
        view->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(view, &QWidget::customContextMenuRequested, this, [this, view](const QPoint& at) {
            if (onEntryPopup)
                onEntryPopup(view->viewport()->mapToGlobal(at));
        });
    }
    connect(ListView1_, &QAbstractItemView::activated, this, execute);
    connect(iconView_, &QAbstractItemView::activated, this, execute);
    auto* selectAll = new QAction(this);
    selectAll->setShortcut(QKeySequence::SelectAll);
    selectAll->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(selectAll, &QAction::triggered, this, [this] {
        if (coreCalls)
            coreCalls("document_select_all");
    });
    addAction(selectAll);
}

void frmDocument::ShowEntries() {
    if (editorOnShow())
        applyEditorChanges();
    listEntries();
    // The editor goes on in the new listing, so that its row on show is one of it.
    if (editorOnShow())
        EditorRefresh();
}

void frmDocument::listEntries() {
    ListingSelection selection;
    selection.hasFolders = !tree_.empty();
    const int node = selectedFolder();
    if (node >= 0) {
        selection.folderId = tree_.nodes[static_cast<size_t>(node)].id();
        selection.fullPath = tree_.nodes[static_cast<size_t>(node)].fullPath;
    }
    selection.SubViewIng = subViewing_;
    model_->setRows(zvx::ShowEntries(common_, cfn(), selection, buffer_));
    if (sorted_)
        applySort();
    summarize();
    if (onSelectionChanged)
        onSelectionChanged();
}

void frmDocument::setSubViewing(bool on) {
    subViewing_ = on;
    ShowEntries();
}

void frmDocument::setListStyle(int style) {
    listStyle_ = style;
    if (style == kReportStyle) {
        views_->setCurrentWidget(ListView1_);
        return;
    }
    iconView_->setViewMode(style == kLargeIconStyle ? QListView::IconMode : QListView::ListMode);
    iconView_->setFlow(style == kListStyle ? QListView::TopToBottom : QListView::LeftToRight);
    iconView_->setWrapping(true);
    iconView_->setIconSize(style == kLargeIconStyle ? QSize(32, 32) : QSize(16, 16));
    views_->setCurrentWidget(iconView_);
}

void frmDocument::loadColumnSetting(const std::string& name) {
    ListLayout layout(kListColumnCount, kColumnWidth);
    try {
        LoadColumnSetting(common_, layout, name, false);
    } catch (const FileError&) {
        return;  // a missing layout leaves the columns as they are
    }
    ApplyColumnLayout(ListView1_->header(), layout);
    sort_ = layout.sort;
}

void frmDocument::saveColumnSetting(const std::string& name) {
    ListLayout layout = HeaderColumnLayout(ListView1_->header());
    layout.sort = sort_;
    SaveColumnSetting(common_, layout, name, false);
}

void frmDocument::sortBy(int column) {
    ColumnClick(sort_, column);
    sorted_ = true;
    applySort();
}

void frmDocument::applySort() {
    model_->setOrder(SortedRowOrder(model_->rows(), sort_, common_.settings));
    ListView1_->header()->setSortIndicatorShown(true);
    ListView1_->header()->setSortIndicator(sort_.SortKey, sort_.SortOrder == kSortAscending
                                                              ? Qt::AscendingOrder
                                                              : Qt::DescendingOrder);
}

void frmDocument::summarize() {
    SelectionTotals totals;
    const QItemSelectionModel* selection = ListView1_->selectionModel();
    for (int row = 0; row < model_->rowCount(); ++row)
        totals.add(EntryItem(model_->lineAt(row), 2), selection->isRowSelected(row, {}));
    if (onSummary)
        onSummary(zvx::summarize(totals));
}

}  // namespace zvx
