#include "document/moving.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "document/folder_tree_widget.h"

namespace zvx {

moving::moving(Common& common, MovingMode mode, MovingSetup setup, QWidget* parent)
    : QDialog(parent), common_(common), mode_(mode), setup_(std::move(setup)) {
    setObjectName("moving");
    setWindowTitle(kMovingTitle);
    auto* layout = new QVBoxLayout(this);
    auto* frame = new QGroupBox(kTargetFrame);
    frame->setObjectName("Frame3");
    auto* options = new QVBoxLayout(frame);
    Option1_ = new QRadioButton(kSubFolderTargetOption);
    Option1_->setObjectName("Option1");
    auto* option2 = new QRadioButton(kRootTargetOption);
    option2->setObjectName("Option2");
    options->addWidget(Option1_);
    options->addWidget(option2);
    (setup_.subFolderTarget ? Option1_ : option2)->setChecked(true);
    frame->setVisible(setup_.showFrame);
    layout->addWidget(frame);
    List1_ = new QTreeWidget;
    List1_->setObjectName("List1");
    List1_->setHeaderHidden(true);
    const auto items = FillTreeWidget(List1_, setup_.tree);
    if (setup_.selected >= 0 && static_cast<size_t>(setup_.selected) < items.size())
        List1_->setCurrentItem(items[static_cast<size_t>(setup_.selected)]);
    List1_->expandAll();
    layout->addWidget(List1_);
    // Option2 (the root) leaves nothing to choose in the tree; Option1 gives it back.
    List1_->setDisabled(option2->isChecked());
    connect(option2, &QRadioButton::toggled, List1_, &QWidget::setDisabled);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    resize(360, 420);
}

std::string moving::showing() {
    const bool accepted = exec() == Accepted;
    if (mode_ == MovingMode::Folder)
        StoreMovingChoice(common_, Option1_->isChecked());
    if (!accepted)
        return {};
    return MovingTarget(mode_, setup_.tree, NodeOfItem(List1_->currentItem()),
                        Option1_->isChecked());
}

}  // namespace zvx
