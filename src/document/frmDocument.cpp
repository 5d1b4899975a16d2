#include "document/frmDocument.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "common/common.h"
#include "common/summary_text.h"
#include "document/column_layout.h"
#include "document/entry_list_model.h"
#include "document/folder_caption.h"
#include "document/folder_navigation.h"
#include "document/folder_refresh.h"
#include "document/folder_tree_widget.h"
#include "document/list_appearance.h"
#include "ui/icons.h"
#include "ui/text_codec.h"

namespace zvx {

frmDocument::frmDocument(Common& common, QWidget* parent) : QWidget(parent), common_(common) {
    setObjectName("frmDocument");
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    splitter_ = new QSplitter(Qt::Horizontal);
    splitter_->setObjectName("picsplitter");
    List2_ = new QTreeWidget;
    List2_->setObjectName("List2");
    List2_->setHeaderHidden(true);
    splitter_->addWidget(List2_);

    auto* right = new QWidget;
    auto* rightLayout = new QVBoxLayout(right);
    rightLayout->setContentsMargins(0, 0, 0, 0);
    auto* folderLine = new QHBoxLayout;
    // nothemes: hides the tree (TreeHidden) and gives the list the whole window.
    auto* nothemes = new QToolButton;
    nothemes->setObjectName("nothemes");
    nothemes->setCheckable(true);
    nothemes->setAutoRaise(true);
    nothemes->setIcon(ThemeIcon("view-list-tree"));
    nothemes->setToolTip("Hide the folder tree");
    connect(nothemes, &QToolButton::toggled, this, [this](bool hidden) {
        TreeHidden_ = hidden;
        List2_->setVisible(!hidden);
    });
    folderLine->addWidget(nothemes);
    Label1_ = new QLabel;
    Label1_->setObjectName("Label1");
    folderLine->addWidget(Label1_, 1);
    rightLayout->addLayout(folderLine);
    Tabthing_ = new QTabWidget;
    Tabthing_->setObjectName("Tabthing");
    rightLayout->addWidget(Tabthing_);
    buildList();
    buildEditor();
    splitter_->addWidget(right);
    splitter_->setStretchFactor(1, 3);
    layout->addWidget(splitter_);

    connect(List2_, &QTreeWidget::currentItemChanged, this, [this] {
        if (!filling_)
            folderSelected();
    });
    connect(List2_, &QTreeWidget::itemCollapsed, this, &frmDocument::List2_Collapse);
    List2_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(List2_, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        if (onFolderPopup)
            onFolderPopup(List2_->viewport()->mapToGlobal(at));
    });
    auto* deleteKey = new QShortcut(QKeySequence(Qt::Key_Delete), List2_);
    deleteKey->setContext(Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, &frmDocument::delFolder_Click);
    subViewing_ = common_.settings.defaultSubViewing;
    setListStyle(ListStyleFromSetting(common_.settings.defaultListStyle));
    loadColumnSetting(StartColumnSettingName(common_));
    resize(640, 400);
}

frmDocument::~frmDocument() = default;

std::string frmDocument::caption() const {
    return FromQString(windowTitle());
}

void frmDocument::setCaption(const std::string& text) {
    setWindowTitle(ToQString(text));
}

std::filesystem::path frmDocument::cfn() const {
    return workingCopy ? workingCopy() : std::filesystem::path();
}

void frmDocument::refresh_Click() {
    listak();
    ShowEntries();
}

void frmDocument::hardRefresh() {
    List2_->clear();
    items_.clear();
    refresh_Click();
}

void frmDocument::listak() {
    if (editorOnShow())
        applyEditorChanges();
    const int remembered = List2_->topLevelItemCount() > 0 ? selectedFolder() : -1;
    List2_->hide();
    tree_ = zvx::listak(common_, cfn());
    const RefreshSelection selection = SelectAfterRefresh(common_, remembered, tree_);
    showTree(selection.node, selection.expand);
    List2_->setVisible(!TreeHidden_);
    common_.setProgress(0);
    common_.screen().status("");
    if (onSelectionChanged)
        onSelectionChanged();
}

// Fills List2 from the tree and selects a node, without listing.
void frmDocument::showTree(int select, bool expand) {
    filling_ = true;
    items_ = FillTreeWidget(List2_, tree_);
    if (select >= 0 && static_cast<size_t>(select) < items_.size()) {
        QTreeWidgetItem* item = items_[static_cast<size_t>(select)];
        List2_->setCurrentItem(item);
        List2_->scrollToItem(item);
        if (expand)
            item->setExpanded(true);
    }
    filling_ = false;
    showCaption();
}

// folderstats: the folder line, with the folder's path as its Tag.
void frmDocument::showCaption() {
    const FolderCaption caption = folderstats(tree_, selectedFolder());
    Label1_->setText(ToQString(caption.caption));
    Label1_->setToolTip(ToQString(caption.caption));
    Label1_->setProperty("Tag", ToQString(caption.tag));
}

int frmDocument::selectedFolder() const {
    return NodeOfItem(List2_->currentItem());
}

const FolderNode* frmDocument::selectedNode() const {
    const int node = selectedFolder();
    return node >= 0 && node < tree_.size() ? &tree_.nodes[static_cast<size_t>(node)] : nullptr;
}

// A collapsed node becomes the selected one; when it hid the folder on show, that
// folder's listing gives way to the collapsed one's.
void frmDocument::List2_Collapse(QTreeWidgetItem* item) {
    const int node = NodeOfItem(item);
    if (filling_ || node < 0 || node >= tree_.size())
        return;
    const std::string& path = tree_.nodes[static_cast<size_t>(node)].fullPath;
    const std::string shown = FromQString(Label1_->property("Tag").toString());
    filling_ = true;
    List2_->setCurrentItem(item);
    filling_ = false;
    if (shown.size() > path.size() && shown.starts_with(path)) {
        if (editorOnShow())
            applyEditorChanges();
        showCaption();
        ShowEntries();
    }
}

// A node click: the folder line and the listing.
void frmDocument::folderSelected() {
    showCaption();
    ShowEntries();
}

SelectionFacts frmDocument::selectionFacts() const {
    SelectionFacts facts;
    facts.hasRows = model_->rowCount() > 0;
    facts.rowSelected = ListView1_->selectionModel()->hasSelection();
    facts.hasFolders = !tree_.empty();
    facts.folderSelected = selectedFolder() >= 0;
    return facts;
}

void frmDocument::closeEvent(QCloseEvent* event) {
    if (onClose) {
        auto close = std::move(onClose);
        onClose = nullptr;
        close();
    }
    event->accept();
}

}  // namespace zvx
