#include "adding/cdwizard.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "adding/cdwizard_rules.h"
#include "adding/tree_adding.h"
#include "common/common.h"
#include "document/folder_icon_table.h"
#include "document/folder_tree.h"
#include "document/frmDocument.h"
#include "platform/directory_walk.h"
#include "platform/file_error.h"
#include "ui/folder_icons.h"
#include "ui/text_codec.h"

namespace zvx {

namespace {

constexpr const char* kAudioPatterns =
    "*.mp3;*.wav;*.mpeg3 ;*.au;*.sun;*.voc;*.smp;*.mod;*.s3m;*.vox";

template <class Widget>
Widget* Named(Widget* widget, const char* name) {
    widget->setObjectName(name);
    return widget;
}

QComboBox* IconCombo(const char* name) {
    auto* combo = Named(new QComboBox, name);
    for (const FolderIconEntry& entry : FolderIconTable())
        combo->addItem(FolderIcon(entry.number), entry.label, entry.number);
    return combo;
}

void Warn(Common& common, const char* caption, const std::string& text) {
    common.screen().message(caption, text, MsgButtons::OkOnly, MsgIcon::Exclamation);
}

}  // namespace

cdwizard::cdwizard(Common& common, frmDocument& document, std::vector<Drive> drives,
                   QWidget* parent)
    : QDialog(parent), common_(common), document_(document), drives_(std::move(drives)) {
    setObjectName("cdwizard");
    setWindowTitle("ZVX-Tree-Adding-Wizard");
    setModal(true);
    TabStrip1_ = Named(new QTabWidget, "TabStrip1");
    TabStrip1_->addTab(buildSourcePage(), "Source");
    TabStrip1_->addTab(buildOptionsPage(), "Options");
    auto* add = Named(new QPushButton("Add Device"), "command2");
    auto* close = Named(new QPushButton("Cancel"), "command1");
    add->setDefault(true);
    connect(add, &QPushButton::clicked, this, &cdwizard::command2_Click);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(close);
    buttons->addWidget(add);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(TabStrip1_);
    layout->addLayout(buttons);
    loadSettings();
}

QWidget* cdwizard::buildSourcePage() {
    auto* page = Named(new QWidget, "Picture1");
    Drive1_ = Named(new QComboBox, "Drive1");
    for (const Drive& drive : drives_) {
        const std::string text =
            drive.label.empty() ? drive.path : drive.path + " [" + drive.label + "]";
        Drive1_->addItem(ToQString(text));
    }
    dirLabel_ = Named(new QLabel, "Label3");
    Dir1_ = Named(new QListWidget, "Dir1");
    Check1_ = Named(new QCheckBox("Add selected sub-directories only:"), "Check1");
    Option2_ = Named(new QRadioButton("Add as root-folder"), "Option2");
    Option1_ = Named(new QRadioButton("Add as sub-data of the selected ZVX-folder"), "Option1");
    Check6_ = Named(new QCheckBox("Create a new-parental-folder"), "Check6");
    Label2_ = Named(new QLabel("Root-folder name:"), "Label2");
    Text1_ = Named(new QLineEdit, "Text1");
    Check5_ = Named(new QCheckBox("Auto-retrieve from device/dir"), "Check5");
    Check3_ = Named(new QCheckBox("Create real ZVX-folders for each directory scanned"), "Check3");

    auto* layout = new QFormLayout(page);
    layout->addRow("Device:", Drive1_);
    layout->addRow(Check1_);
    layout->addRow(dirLabel_);
    layout->addRow(Dir1_);
    layout->addRow(Option2_);
    layout->addRow(Option1_);
    layout->addRow(Check6_);
    layout->addRow(Label2_, Text1_);
    layout->addRow(Check5_);
    layout->addRow(Check3_);

    connect(Drive1_, &QComboBox::activated, this, &cdwizard::Drive1_Change);
    connect(Dir1_, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* item) {
        const std::string name = FromQString(item->text());
        if (name == "..")
            setDirPath(std::filesystem::path(dirPath_).parent_path().string());
        else
            setDirPath((std::filesystem::path(dirPath_) / name).string());
    });
    connect(Check1_, &QCheckBox::toggled, this, [this] {
        enableControls();
        ProposeRootName();
    });
    connect(Check5_, &QCheckBox::toggled, this, &cdwizard::ProposeRootName);
    connect(Check6_, &QCheckBox::toggled, this, &cdwizard::enableControls);
    connect(Text1_, &QLineEdit::editingFinished, this, &cdwizard::Text1_Validate);
    return page;
}

QWidget* cdwizard::buildOptionsPage() {
    auto* page = Named(new QWidget, "Picture2");
    Check2_ = Named(new QCheckBox("Auto-detag audio-files"), "Check2");
    Check7_ = Named(new QCheckBox("Only add files that match this pattern:"), "Check7");
    Text2_ = Named(new QLineEdit, "Text2");
    auto* audio = Named(new QPushButton("Audio"), "FlatBttn1");
    Option3_ = Named(new QRadioButton("Set folder-description to the following text:"), "Option3");
    Text3_ = Named(new QLineEdit, "Text3");
    Option4_ = Named(new QRadioButton("Set folder-description to real directory-name"), "Option4");
    ImageCombo1_ = IconCombo("ImageCombo1");
    ImageCombo2_ = IconCombo("ImageCombo2");
    Check4_ = Named(new QCheckBox("Save settings on exit"), "Check4");

    auto* pattern = new QHBoxLayout;
    pattern->addWidget(Text2_);
    pattern->addWidget(audio);
    auto* layout = new QFormLayout(page);
    layout->addRow(Check2_);
    layout->addRow(Check7_);
    layout->addRow("Search-pattern:", pattern);
    layout->addRow(Option3_);
    layout->addRow(Text3_);
    layout->addRow(Option4_);
    layout->addRow("Top-level-icon (for the root-folder):", ImageCombo1_);
    layout->addRow("Sub-level-icon (for all sub-folders):", ImageCombo2_);
    layout->addRow(Check4_);

    connect(audio, &QPushButton::clicked, this, [this] { Text2_->setText(kAudioPatterns); });
    connect(Check7_, &QCheckBox::toggled, this, &cdwizard::enableControls);
    return page;
}

void cdwizard::loadSettings() {
    const CdwizardSettings s = LoadCdwizardSettings(common_);
    if (!drives_.empty()) {
        Drive1_->setCurrentIndex(s.lastDrive >= 0 && s.lastDrive < Drive1_->count() ? s.lastDrive
                                                                                    : 0);
        Drive1_Change();
    }
    if (s.lastSubDir >= 0 && s.lastSubDir < Dir1_->count())
        Dir1_->setCurrentRow(s.lastSubDir);
    Check1_->setChecked(s.subDirsOnly);
    const bool canAddBelow = document_.selectedNode() != nullptr;
    Option1_->setEnabled(canAddBelow);
    (s.addAsSubData && canAddBelow ? Option1_ : Option2_)->setChecked(true);
    Check6_->setChecked(s.makeParental);
    Text1_->setText(ToQString(s.parentalName));
    Check5_->setChecked(s.autoGetName);
    Check3_->setChecked(s.makeRealFolders);
    Check2_->setChecked(s.autoDetag);
    Check7_->setChecked(s.onlyAddPattern);
    Text2_->setText(ToQString(s.pattern));
    (s.useOwnDescription ? Option3_ : Option4_)->setChecked(true);
    Text3_->setText(ToQString(s.ownDescription));
    ImageCombo1_->setCurrentIndex(s.topIconRow - 1);
    ImageCombo2_->setCurrentIndex(s.subIconRow - 1);
    Check4_->setChecked(s.saveMySettings);
    enableControls();
    ProposeRootName();
}

CdwizardSettings cdwizard::currentSettings() const {
    CdwizardSettings s;
    s.lastDrive = Drive1_->currentIndex();
    s.lastSubDir = Dir1_->currentRow();
    s.subDirsOnly = Check1_->isChecked();
    s.addAsSubData = Option1_->isChecked();
    s.makeParental = Check6_->isChecked();
    s.parentalName = FromQString(Text1_->text());
    s.autoGetName = Check5_->isChecked();
    s.makeRealFolders = Check3_->isChecked();
    s.autoDetag = Check2_->isChecked();
    s.onlyAddPattern = Check7_->isChecked();
    s.pattern = FromQString(Text2_->text());
    s.useOwnDescription = Option3_->isChecked();
    s.ownDescription = FromQString(Text3_->text());
    s.topIconRow = ImageCombo1_->currentIndex() + 1;
    s.subIconRow = ImageCombo2_->currentIndex() + 1;
    s.saveMySettings = Check4_->isChecked();
    return s;
}

// A device that cannot be read keeps the old one chosen.
void cdwizard::Drive1_Change() {
    const int row = Drive1_->currentIndex();
    if (row < 0 || static_cast<size_t>(row) >= drives_.size())
        return;
    const std::string& path = drives_[static_cast<size_t>(row)].path;
    if (!QDir(ToQString(path)).isReadable()) {
        common_.screen().message("Error.", "Device unavailable: " + path, MsgButtons::OkOnly,
                                 MsgIcon::Critical);
        Drive1_->setCurrentIndex(driveRow_);
        return;
    }
    driveRow_ = row;
    setDirPath(path);
}

void cdwizard::setDirPath(const std::string& path) {
    std::vector<std::string> names;
    try {
        names = SubDirectoryNames(path, DeviceOf(path));
    } catch (const FileError& error) {
        common_.screen().message("Error.", error.what(), MsgButtons::OkOnly, MsgIcon::Critical);
        return;
    }
    dirPath_ = path;
    dirLabel_->setText(ToQString(path));
    Dir1_->clear();
    if (std::filesystem::path(path) != std::filesystem::path(path).root_path())
        Dir1_->addItem("..");
    for (const std::string& name : names)
        Dir1_->addItem(ToQString(name));
    ProposeRootName();
}

void cdwizard::ProposeRootName() {
    if (!Check5_ || !Check5_->isChecked() || driveRow_ < 0)
        return;
    const Drive& drive = drives_[static_cast<size_t>(driveRow_)];
    Text1_->setText(
        ToQString(zvx::ProposeRootName(Check1_->isChecked(), dirPath_, drive.path, drive.label)));
}

void cdwizard::Text1_Validate() {
    if (!Text1_->text().contains('\\'))
        return;
    Warn(common_, "Syntax-Correction", "A backslash is not allowed in a folder-name");
    Text1_->clear();
}

void cdwizard::enableControls() {
    Text2_->setEnabled(Check7_->isChecked());
    Label2_->setEnabled(Check6_->isChecked());
    Text1_->setEnabled(Check6_->isChecked());
    Check5_->setEnabled(Check6_->isChecked());
    Dir1_->setEnabled(Check1_->isChecked());
}

std::string cdwizard::rootPath() const {
    if (Check1_->isChecked())
        return dirPath_;
    return driveRow_ >= 0 ? drives_[static_cast<size_t>(driveRow_)].path : dirPath_;
}

void cdwizard::command2_Click() {
    std::string name = FromQString(Text1_->text());
    if (Check6_->isChecked()) {
        const std::string problem = ParentalNameProblem(name);
        Text1_->setText(ToQString(name));
        if (!problem.empty()) {
            Warn(common_, "Error.", problem);
            return;
        }
    }
    TreeAddingChoices choices;
    choices.root = rootPath();
    if (choices.root.empty())
        return;
    choices.addAsSubData = Option1_->isChecked();
    if (const FolderNode* node = document_.selectedNode())
        choices.selectedFolderPath = node->fullPath;
    choices.makeParental = Check6_->isChecked();
    choices.parentalName = name;
    choices.realFolders = Check3_->isChecked();
    choices.detag = Check2_->isChecked();
    if (!ApplyPattern(Check7_->isChecked(), FromQString(Text2_->text()), choices.pattern))
        Warn(common_, "Error.", "Invalid file-pattern!");
    choices.ownDescription = Option3_->isChecked();
    choices.description = FromQString(Text3_->text());
    choices.topIcon = ImageCombo1_->currentData().toInt();
    choices.subIcon = ImageCombo2_->currentData().toInt();
    hide();
    AddTree(common_, document_.cfn(), choices);
    document_.refresh_Click();
    KillTempFiles(common_);
    accept();
}

void cdwizard::done(int result) {
    SaveCdwizardSettings(common_, currentSettings());
    QDialog::done(result);
}

}  // namespace zvx
