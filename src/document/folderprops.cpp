#include "document/folderprops.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>

#include "document/folder_icon_table.h"
#include "ui/folder_icons.h"
#include "ui/text_codec.h"

namespace zvx {

folderprops::folderprops(Common& common, bool newFolder, const FolderPropsSetup& setup,
                         QWidget* parent)
    : QDialog(parent), common_(common), newFolder_(newFolder) {
    setObjectName("folderprops");
    setWindowTitle(ToQString(setup.title));
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    Text1_ = new QLineEdit(ToQString(setup.name));
    Text1_->setObjectName("Text1");
    Text2_ = new QLineEdit(ToQString(setup.description));
    Text2_->setObjectName("Text2");
    ImageCombo1_ = new QComboBox;
    ImageCombo1_->setObjectName("ImageCombo1");
    for (const FolderIconEntry& entry : FolderIconTable())
        ImageCombo1_->addItem(FolderIcon(entry.number), entry.label, entry.number);
    ImageCombo1_->setCurrentIndex(setup.iconRow);
    form->addRow("Name:", Text1_);
    form->addRow("Description:", Text2_);
    form->addRow("Icon:", ImageCombo1_);
    layout->addLayout(form);

    auto* frame = new QGroupBox;
    frame->setObjectName("Frame3");
    auto* options = new QVBoxLayout(frame);
    Option1_ = new QRadioButton(kSubFolderOption);
    Option1_->setObjectName("Option1");
    Option2_ = new QRadioButton(kRootFolderOption);
    Option2_->setObjectName("Option2");
    options->addWidget(Option1_);
    options->addWidget(Option2_);
    Option1_->setEnabled(setup.option1Enabled);
    (setup.subFolder ? Option1_ : Option2_)->setChecked(true);
    frame->setVisible(setup.showFrame);
    layout->addWidget(frame);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setObjectName("Command1");
    buttons->button(QDialogButtonBox::Cancel)->setObjectName("Command2");
    connect(buttons, &QDialogButtonBox::accepted, this, &folderprops::ok);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    connect(Text1_, &QLineEdit::textEdited, this, &folderprops::Text1_Change);
    if (newFolder_)
        Text1_->selectAll();
}

// Text1 loses leading blanks as they are typed; the cursor keeps its place in the rest.
void folderprops::Text1_Change(const QString& text) {
    const QString typed = ToQString(FolderNameAsTyped(FromQString(text)));
    if (typed == text)
        return;
    const int cursor = Text1_->cursorPosition() - static_cast<int>(text.size() - typed.size());
    Text1_->setText(typed);
    Text1_->setCursorPosition(std::max(cursor, 0));
}

void folderprops::ok() {
    result_ =
        FolderPropsOk(common_, newFolder_, FromQString(Text1_->text()), FromQString(Text2_->text()),
                      ImageCombo1_->currentIndex(), Option1_->isChecked());
    if (result_)
        accept();
}

std::optional<FolderDialogResult> folderprops::showing() {
    result_.reset();
    return exec() == Accepted ? result_ : std::nullopt;
}

}  // namespace zvx
