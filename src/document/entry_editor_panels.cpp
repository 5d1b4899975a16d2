// The entry editor's two panels: the style chooser (Picture2) and the jump list
// (Picture3).

#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "document/entry_editor.h"
#include "ui/text_codec.h"

namespace zvx {

namespace {
// Picture3 stands this far right of Frame3.
constexpr int kJumpListOffset = 50;
}  // namespace

// Picture2: the styles with their checks, closed by FlatBttn5, Return, Esc, the OK and
// Cancel buttons, or by the list losing the focus.
void EntryEditor::buildStyleChooser() {
    Picture2_ = new QFrame(this);
    Picture2_->setObjectName("Picture2");
    Picture2_->setFrameShape(QFrame::Box);
    Picture2_->setAutoFillBackground(true);
    auto* layout = new QVBoxLayout(Picture2_);
    auto* title = new QLabel("Available Styles");
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    layout->addWidget(title);
    auto* prompt = new QLabel("Please pick the styles that match this entry.");
    prompt->setWordWrap(true);
    layout->addWidget(prompt);
    ListView2_ = new QListWidget;
    ListView2_->setObjectName("ListView2");
    ListView2_->installEventFilter(this);
    layout->addWidget(ListView2_, 1);
    auto* buttons = new QHBoxLayout;
    auto* ok = new QPushButton("OK");
    ok->setObjectName("FlatBttn6");
    auto* cancel = new QPushButton("Cancel");
    cancel->setObjectName("FlatBttn7");
    ok->setFocusPolicy(Qt::NoFocus);
    cancel->setFocusPolicy(Qt::NoFocus);
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    layout->addLayout(buttons);
    Picture2_->hide();

    connect(ListView2_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
        item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
        emit edited();
    });
    connect(ok, &QPushButton::pressed, this, [this] { StyleCancel_ = false; });
    connect(cancel, &QPushButton::pressed, this, [this] { StyleCancel_ = true; });
    connect(ok, &QPushButton::clicked, this, &EntryEditor::closeStyleChooser);
    connect(cancel, &QPushButton::clicked, this, &EntryEditor::closeStyleChooser);
}

// Picture3: "Please select the entry you want to jump to." over ListView3.
void EntryEditor::buildJumpList() {
    Picture3_ = new QFrame(this);
    Picture3_->setObjectName("Picture3");
    Picture3_->setFrameShape(QFrame::Box);
    Picture3_->setAutoFillBackground(true);
    auto* layout = new QVBoxLayout(Picture3_);
    layout->addWidget(new QLabel("Please select the entry you want to jump to."));
    ListView3_ = new QTreeWidget;
    ListView3_->setObjectName("ListView3");
    ListView3_->setRootIsDecorated(false);
    ListView3_->setHeaderLabels({"Entry", "Filename", "State"});
    layout->addWidget(ListView3_, 1);
    Picture3_->hide();
    connect(ListView3_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        const long position = JumpPosition(FromQString(item->text(0)));
        Picture3_->hide();
        emit jumpTo(position);
    });
}

void EntryEditor::openStyleChooser() {
    const std::string styles = FromQString(texts_[5]->text());
    for (int row = 0; row < ListView2_->count(); ++row) {
        QListWidgetItem* item = ListView2_->item(row);
        item->setCheckState(StyleChecked(FromQString(item->text()), styles) ? Qt::Checked
                                                                            : Qt::Unchecked);
    }
    const QPoint below = FlatBttn5_->mapTo(this, QPoint(0, FlatBttn5_->height()));
    Picture2_->resize(260, 300);
    Picture2_->move(std::max(0, below.x() - Picture2_->width() + FlatBttn5_->width()),
                    std::max(0, std::min(below.y(), height() - Picture2_->height())));
    Picture2_->show();
    Picture2_->raise();
    ListView2_->setFocus();
}

void EntryEditor::closeStyleChooser() {
    if (!Picture2_->isVisible())
        return;
    Picture2_->hide();
    if (StyleCancel_)
        return;
    std::vector<std::string> checked;
    for (int row = 0; row < ListView2_->count(); ++row) {
        if (ListView2_->item(row)->checkState() == Qt::Checked)
            checked.push_back(FromQString(ListView2_->item(row)->text()));
    }
    texts_[5]->setText(ToQString(StyleText(checked)));
}

void EntryEditor::toggleJumpList() {
    if (Picture3_->isVisible()) {
        Picture3_->hide();
        return;
    }
    ListView3_->clear();
    const QPoint corner = Frame3_->mapTo(this, QPoint(0, 0));
    Picture3_->resize(360, 260);
    Picture3_->move(std::max(0, Frame3_->width() - Picture3_->width() - kJumpListOffset),
                    std::max(0, corner.y() - Picture3_->height()));
    Picture3_->show();
    Picture3_->raise();
    emit jumpListOpened();
}

void EntryEditor::showJumpList(const std::vector<JumpRow>& rows) {
    ListView3_->clear();
    QList<QTreeWidgetItem*> items;
    items.reserve(static_cast<qsizetype>(rows.size()));
    for (const JumpRow& row : rows)
        items.append(new QTreeWidgetItem(
            {ToQString(row.entry), ToQString(row.filename), ToQString(row.state)}));
    ListView3_->addTopLevelItems(items);
}

}  // namespace zvx
