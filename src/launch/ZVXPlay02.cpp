#include "launch/ZVXPlay02.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/text_codec.h"

namespace zvx {

namespace {

template <typename Widget>
Widget* Named(Widget* widget, const char* name) {
    widget->setObjectName(name);
    return widget;
}

}  // namespace

ZVXPlay02::ZVXPlay02(const std::vector<Drive>& drives, QWidget* parent) : QDialog(parent) {
    setObjectName("ZVXPlay02");
    setWindowTitle(kMissingFileTitle);
    setModal(true);
    auto* heading = Named(new QLabel(kMissingFileHeading), "Label1");
    Label2_ = Named(new QLabel, "Label2");
    Label2_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* insert = Named(new QLabel(kInsertMediumText), "Label3");
    insert->setWordWrap(true);
    Label4_ = Named(new QLabel, "Label4");
    Label5_ = Named(new QLabel, "Label5");

    auto* frame = Named(new QGroupBox(kSelectDeviceCaption), "Frame1");
    Drive1_ = Named(new QComboBox, "Drive1");
    // Editable: a medium may hang anywhere on Linux, not only on a listed mount path.
    Drive1_->setEditable(true);
    for (const Drive& drive : drives) {
        Drive1_->addItem(ToQString(drive.path));
        Drive1_->setItemData(Drive1_->count() - 1, ToQString(drive.label), Qt::ToolTipRole);
    }
    auto* frameLayout = new QVBoxLayout(frame);
    frameLayout->addWidget(Drive1_);

    auto* attempt = Named(new QPushButton(kAttemptCaption), "FlatBttn1");
    auto* skipAll = Named(new QPushButton(kSkipAllCaption), "FlatBttn2");
    auto* abortAll = Named(new QPushButton(kAbortAllCaption), "FlatBttn3");
    auto* skipFile = Named(new QPushButton(kSkipFileCaption), "FlatBttn4");
    attempt->setDefault(true);
    connect(attempt, &QPushButton::clicked, this, &ZVXPlay02::FlatBttn1_Click);
    connect(skipAll, &QPushButton::clicked, this, [this] { closeWith(MissingChoice::SkipAll); });
    connect(abortAll, &QPushButton::clicked, this, [this] { closeWith(MissingChoice::AbortAll); });
    connect(skipFile, &QPushButton::clicked, this, [this] { closeWith(MissingChoice::SkipFile); });
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {attempt, skipAll, abortAll, skipFile}) {
        button->setFlat(true);
        buttons->addWidget(button);
    }

    auto* layout = new QVBoxLayout(this);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{heading, Label2_, insert, Label4_, Label5_, frame})
        layout->addWidget(widget);
    layout->addLayout(buttons);
}

MissingChoice ZVXPlay02::showing(const MissingFile& file, const AttemptDevice& attempt) {
    Label2_->setText(ToQString(file.path));
    Label4_->setText(ToQString(DeviceIdText(file.deviceId)));
    Label5_->setText(ToQString(DeviceDescriptionText(file.deviceDescription)));
    attempt_ = attempt;
    choice_ = MissingChoice::SkipFile;
    exec();
    return choice_;
}

// The file moved to the selected drive: found, it has been opened and the dialog
// closes; otherwise the dialog stays for another medium.
void ZVXPlay02::FlatBttn1_Click() {
    if (attempt_ && attempt_(FromQString(Drive1_->currentText())))
        closeWith(MissingChoice::Attempt);
}

void ZVXPlay02::closeWith(MissingChoice choice) {
    choice_ = choice;
    accept();
}

}  // namespace zvx
