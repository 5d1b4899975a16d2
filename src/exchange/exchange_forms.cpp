#include "exchange/exchange_forms.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "common/common.h"
#include "document/frmDocument.h"
#include "exchange/export_prep.h"
#include "ui/command_guard.h"
#include "ui/text_codec.h"

namespace zvx {

namespace {

QRadioButton* Option(QVBoxLayout* layout, const char* name, const char* caption) {
    auto* option = new QRadioButton(caption);
    option->setObjectName(name);
    layout->addWidget(option);
    return option;
}

QGroupBox* OptionFrame(const char* caption, QVBoxLayout*& options) {
    auto* frame = new QGroupBox(caption);
    options = new QVBoxLayout(frame);
    return frame;
}

// The run button and "Close" under the dialog's controls.
void AddButtons(QDialog& dialog, QVBoxLayout* layout, const char* caption,
                const std::function<void()>& run) {
    auto* buttons = new QDialogButtonBox;
    QPushButton* command = buttons->addButton(caption, QDialogButtonBox::ActionRole);
    command->setObjectName("Command1");
    buttons->addButton(QDialogButtonBox::Close);
    QObject::connect(command, &QPushButton::clicked, &dialog, run);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
}

}  // namespace

FilterPanel::FilterPanel(Common& common, FilterKind kind, QWidget* parent)
    : QWidget(parent), common_(common), kind_(kind), rows_(ScanFilters(common, kind)) {
    List1_ = new QListWidget;
    List1_->setObjectName("List1");
    for (const FilterRow& row : rows_)
        List1_->addItem(ToQString(row.name));
    auto* details = new QVBoxLayout;
    for (int i = 0; i < 4; ++i) {
        labels_[i] = new QLabel;
        labels_[i]->setObjectName(QString("Label%1").arg(i + 1));
        labels_[i]->setWordWrap(true);
        details->addWidget(labels_[i]);
    }
    details->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(List1_);
    layout->addLayout(details);
    connect(List1_, &QListWidget::currentRowChanged, this, &FilterPanel::showDetails);
}

std::string FilterPanel::selectedFile() const {
    const int row = List1_->currentRow();
    if (row < 0 || !List1_->item(row)->isSelected())
        return "";
    return rows_[static_cast<size_t>(row)].fileName;
}

void FilterPanel::showDetails() {
    const std::string file = selectedFile();
    if (file.empty())
        return;
    RunGuarded(common_, [&] {
        const FilterDetails d = ReadFilterDetails(common_, kind_, file);
        const std::string texts[4] = {d.fileTypes, d.description, d.copyright, d.version};
        for (int i = 0; i < 4; ++i)
            labels_[i]->setText(ToQString(texts[i]));
    });
}

exportForm::exportForm(Common& common, FilterRunner runFilter, QWidget* parent)
    : QDialog(parent), common_(common), runFilter_(std::move(runFilter)) {
    setObjectName("export");
    setWindowTitle("ZVX-Export");
    TakeExportBackup(common_, ExportFilePath(common_));
    filters_ = new FilterPanel(common_, FilterKind::Export);
    QVBoxLayout* options = nullptr;
    QGroupBox* frame =
        OptionFrame("How would you like to set the TOC of the exported data?", options);
    Option1_ = Option(options, "Option1",
                      "Keep the entire folder-structure (also if no entries are included)");
    Option2_ = Option(options, "Option2",
                      "Optimize the old folder-structure (so that only needed sub-trees will "
                      "be exported)");
    Option(options, "Option3",
           "Create a totally new TOC with only one folder, that will contain all entries.");
    Option1_->setChecked(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(filters_);
    layout->addWidget(frame);
    AddButtons(*this, layout, "Export", [this] { Command1_Click(); });
}

void exportForm::Command1_Click() {
    const ExportTocMode mode = Option1_->isChecked()   ? ExportTocMode::All
                               : Option2_->isChecked() ? ExportTocMode::Optimize
                                                       : ExportTocMode::New;
    const std::string file = filters_->selectedFile();
    if (file.empty())
        return;
    RunGuarded(common_, [&] { RunExport(common_, file, mode, runFilter_); });
}

importForm::importForm(Common& common, frmDocument& document, FilterRunner runFilter,
                       QWidget* parent)
    : QDialog(parent), common_(common), document_(document), runFilter_(std::move(runFilter)) {
    setObjectName("import");
    setWindowTitle("ZVX-Import");
    filters_ = new FilterPanel(common_, FilterKind::Import);
    QVBoxLayout* options = nullptr;
    QGroupBox* frame = OptionFrame("Where would you like to place the imported data?", options);
    Option1_ = Option(options, "Option1", "As sub-data of the selected folder");
    Option(options, "Option2", "As root")->setChecked(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(filters_);
    layout->addWidget(frame);
    AddButtons(*this, layout, "Import", [this] { Command1_Click(); });
}

void importForm::Command1_Click() {
    const std::string file = filters_->selectedFile();
    if (file.empty())
        return;
    RunGuarded(common_, [&] {
        const FolderNode* node = document_.selectedNode();
        const std::string target =
            ImportTargetPath(Option1_->isChecked(), node ? node->fullPath : "");
        if (RunImport(common_, file, document_.cfn(), target, runFilter_))
            document_.refresh_Click();
    });
}

}  // namespace zvx
