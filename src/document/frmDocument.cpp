#include "document/frmDocument.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QSplitter>
#include <QTreeView>
#include <QTreeWidget>

#include "shell/common.h"
#include "ui/text_codec.h"

namespace zvx {

frmDocument::frmDocument(Common& common, QWidget* parent) : QWidget(parent), common_(common) {
    setObjectName("frmDocument");
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    splitter_ = new QSplitter(Qt::Horizontal);
    splitter_->setObjectName("Splitter");
    List2_ = new QTreeWidget;
    List2_->setObjectName("List2");
    List2_->setHeaderHidden(true);
    ListView1_ = new QTreeView;
    ListView1_->setObjectName("ListView1");
    ListView1_->setRootIsDecorated(false);
    ListView1_->setUniformRowHeights(true);
    splitter_->addWidget(List2_);
    splitter_->addWidget(ListView1_);
    splitter_->setStretchFactor(1, 3);
    layout->addWidget(splitter_);
    resize(640, 400);
}

std::string frmDocument::caption() const {
    return FromQString(windowTitle());
}

void frmDocument::setCaption(const std::string& text) {
    setWindowTitle(ToQString(text));
}

// The tree and the list are filled from the working copy by the folder and listing
// code; until a document has them, a refresh only ends the operation it closes.
void frmDocument::refresh_Click() {
    common_.screen().status("");
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
