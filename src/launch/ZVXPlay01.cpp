#include "launch/ZVXPlay01.h"

#include <QAbstractItemView>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>
#include <exception>

#include "document/entry_list_model.h"
#include "launch/ZVXPlay02.h"
#include "platform/drives.h"
#include "ui/desktop.h"
#include "ui/text_codec.h"

namespace zvx {

namespace {

QLabel* NamedLabel(const QString& text, const char* name) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    return label;
}

// Executa: the desktop's default handler.
class DesktopOpener : public FileOpener {
  public:
    explicit DesktopOpener(Desktop& desktop) : desktop_(desktop) {}
    void open(const std::filesystem::path& file) override {
        desktop_.openUrl(
            QUrl::fromLocalFile(QFile::decodeName(QByteArray::fromStdString(file.native()))));
    }

  private:
    Desktop& desktop_;
};

}  // namespace

ZVXPlay01::ZVXPlay01(Common& common, QAbstractItemView* list, Desktop& desktop, QWidget* parent)
    : QDialog(parent), list_(list), opener_(std::make_unique<DesktopOpener>(desktop)) {
    setObjectName("ZVXPlay01");
    setWindowTitle(kExecuterTitle);
    setModal(true);
    ExecuterList& rows = *this;
    MissingFileDialog& dialog = *this;
    run_ = std::make_unique<ExecuterRun>(common, rows, *opener_, dialog, CurrentDriveRoots());
    Label1_ = NamedLabel("", "Label1");
    Label1_->setMinimumWidth(420);
    Label2_ = NamedLabel(kSearchingText, "Label2");
    Label3_ = NamedLabel(kExecutingText, "Label3");
    Label3_->hide();
    ProgressBar1_ = new QProgressBar;
    ProgressBar1_->setObjectName("ProgressBar1");
    ProgressBar1_->setRange(0, 1);
    ProgressBar1_->setValue(0);
    auto* cancel = new QPushButton("Cancel");
    cancel->setObjectName("Command1");
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    for (QWidget* widget : {static_cast<QWidget*>(Label1_), static_cast<QWidget*>(Label2_),
                            static_cast<QWidget*>(Label3_), static_cast<QWidget*>(ProgressBar1_)})
        layout->addWidget(widget);
    layout->addLayout(buttons);

    // Timer1 starts the run once the window has come up; Timer2 makes a loop of single
    // steps, so that the window repaints and Cancel is heard between files.
    Timer1_ = new QTimer(this);
    Timer1_->setObjectName("Timer1");
    Timer1_->setSingleShot(true);
    Timer1_->setInterval(1);
    connect(Timer1_, &QTimer::timeout, this, &ZVXPlay01::yo);
    Timer2_ = new QTimer(this);
    Timer2_->setObjectName("Timer2");
    Timer2_->setInterval(1);
    connect(Timer2_, &QTimer::timeout, this, &ZVXPlay01::fileme);
    if (list_)
        list_->setEnabled(false);
    Timer1_->start();
}

ZVXPlay01::~ZVXPlay01() = default;

void ZVXPlay01::done(int result) {
    Timer1_->stop();
    Timer2_->stop();
    if (list_)
        list_->setEnabled(true);
    QDialog::done(result);
}

// With no row selected there is nothing to open, and the window goes at once.
void ZVXPlay01::yo() {
    if (!run_->yo()) {
        accept();
        return;
    }
    ProgressBar1_->setRange(0, static_cast<int>(run_->selectedCount()));
    ProgressBar1_->setValue(0);
    Timer2_->start();
}

void ZVXPlay01::fileme() {
    // The missing-file dialog is modal inside a step: the ticks wait behind it.
    Timer2_->stop();
    bool goesOn = true;
    try {
        goesOn = run_->fileme();
    } catch (const std::exception&) {
        // A row that cannot be read (a list that changed) ends this step only.
    }
    showState();
    if (goesOn)
        Timer2_->start();
    else
        accept();
}

void ZVXPlay01::showState() {
    Label1_->setText(ToQString(run_->fileText()));
    Label2_->setVisible(!run_->executing());
    Label3_->setVisible(run_->executing());
    ProgressBar1_->setValue(static_cast<int>(run_->doneCount()));
}

long ZVXPlay01::rowCount() const {
    return list_ && list_->model() ? list_->model()->rowCount() : 0;
}

bool ZVXPlay01::isSelected(long row) const {
    return list_ && list_->selectionModel() &&
           list_->selectionModel()->isRowSelected(static_cast<int>(row - 1), {});
}

std::string ZVXPlay01::tag(long row) const {
    if (!list_)
        return {};
    const QModelIndex index = list_->model()->index(static_cast<int>(row - 1), 0);
    return index.data(EntryListModel::TagRole).toByteArray().toStdString();
}

MissingChoice ZVXPlay01::showing(const MissingFile& file, const AttemptDevice& attempt) {
    showState();
    ZVXPlay02 dialog(MountedDrives(), this);
    return dialog.showing(file, attempt);
}

}  // namespace zvx
