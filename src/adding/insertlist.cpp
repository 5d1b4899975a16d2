#include "adding/insertlist.h"

#include <QCheckBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "adding/insert_run.h"
#include "common/common.h"
#include "common/file_dialog_modes.h"
#include "document/frmDocument.h"
#include "ui/text_codec.h"

namespace zvx {

namespace {

QPushButton* Button(const char* name, const char* caption) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    return button;
}

}  // namespace

insertlist::insertlist(Common& common, frmDocument& document, QWidget* parent)
    : QDialog(parent), common_(common), document_(document) {
    setObjectName("insertlist");
    setWindowTitle("ZVX-File-Adding");
    setModal(true);
    resize(560, 360);
    ListView1_ = new QTreeWidget;
    ListView1_->setObjectName("ListView1");
    ListView1_->setHeaderLabels({"Filename", "Path"});
    ListView1_->setRootIsDecorated(false);
    ListView1_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    ListView1_->setAcceptDrops(true);
    ListView1_->viewport()->setAcceptDrops(true);
    ListView1_->installEventFilter(this);
    ListView1_->viewport()->installEventFilter(this);
    Check1_ = new QCheckBox("Auto-detag audio-files");
    Check1_->setObjectName("Check1");
    Check1_->setChecked(true);
    Label1_ = new QLabel;
    Label1_->setObjectName("Label1");

    QPushButton* add = Button("FlatBttn1", "Add Files...");
    QPushButton* remove = Button("Command2", "Remove");
    QPushButton* clear = Button("Command4", "Clear List");
    QPushButton* insert = Button("Command3", "Insert All");
    insert->setDefault(true);
    connect(add, &QPushButton::clicked, this, &insertlist::FlatBttn1_Click);
    connect(remove, &QPushButton::clicked, this, &insertlist::Command2_Click);
    connect(clear, &QPushButton::clicked, this, &insertlist::Command4_Click);
    connect(insert, &QPushButton::clicked, this, &insertlist::Command3_Click);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(remove);
    buttons->addStretch();
    buttons->addWidget(clear);
    buttons->addWidget(insert);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(ListView1_);
    layout->addWidget(Label1_);
    layout->addWidget(Check1_);
    layout->addLayout(buttons);
    dataact();
}

void insertlist::start() {
    if (!document_.hasFolders() && document_.coreCalls)
        document_.coreCalls("folder_create");
    if (!document_.hasFolders()) {
        Command4_Click();
        return;
    }
    exec();
}

void insertlist::listmore(const std::string& path) {
    zvx::listmore(rows_, path);
    dataact();
}

void insertlist::dataact() {
    Label1_->setText(ToQString(zvx::dataact(rows_)));
    showRows();
}

void insertlist::showRows() {
    ListView1_->clear();
    QList<QTreeWidgetItem*> items;
    for (const InsertRow& row : rows_)
        items.append(new QTreeWidgetItem({ToQString(row.name), ToQString(row.folder)}));
    ListView1_->addTopLevelItems(items);
}

void insertlist::Command2_Click() {
    for (int row = ListView1_->topLevelItemCount() - 1; row >= 0; --row) {
        if (ListView1_->topLevelItem(row)->isSelected())
            rows_.erase(rows_.begin() + row);
    }
    dataact();
}

void insertlist::Command3_Click() {
    const FolderNode* folder = document_.selectedNode();
    if (!rows_.empty() && folder)
        InsertRun(common_, document_.cfn(), folder->id(), rows_, Check1_->isChecked());
    document_.refresh_Click();
    rows_.clear();
    dataact();
    accept();
}

void insertlist::Command4_Click() {
    rows_.clear();
    dataact();
    reject();
}

void insertlist::FlatBttn1_Click() {
    common_.screen().status("Showing \"File Adding\" Dialogue...");
    FileDialogResult chosen = expshowing(common_, "add");
    common_.screen().status("");
    if (chosen.paths.empty())
        return;
    AddDialogResult(rows_, chosen.paths);
    dataact();
}

bool insertlist::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove) {
        auto* drag = static_cast<QDropEvent*>(event);
        if (drag->mimeData()->hasUrls()) {
            drag->acceptProposedAction();
            return true;
        }
    }
    if (event->type() == QEvent::Drop) {
        auto* drop = static_cast<QDropEvent*>(event);
        for (const QUrl& url : drop->mimeData()->urls()) {
            if (url.isLocalFile())
                zvx::listmore(rows_, FromQString(url.toLocalFile()));
        }
        dataact();
        drop->acceptProposedAction();
        return true;
    }
    if (event->type() == QEvent::KeyPress && watched == ListView1_) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Delete && key->modifiers() == Qt::NoModifier) {
            Command2_Click();
            return true;
        }
        if (key->key() == Qt::Key_A && key->modifiers() == Qt::ControlModifier) {
            ListView1_->selectAll();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace zvx
