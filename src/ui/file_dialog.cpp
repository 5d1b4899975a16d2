#include "ui/file_dialog.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/content_icons.h"
#include "ui/file_info.h"
#include "ui/text_codec.h"

namespace zvx {

QString FilterText(const std::string& label, const std::string& patterns) {
    QString qtPatterns = ToQString(patterns).replace(';', ' ');
    qtPatterns.replace("*.*", "*");
    QString text = ToQString(label);
    // The label names its patterns already, "ZVX-Documents (*.zvx)": give Qt the same.
    int open = text.lastIndexOf('(');
    if (open > 0)
        text = text.left(open).trimmed();
    return text + " (" + qtPatterns + ")";
}

namespace {

// The information labels below the dialog, with the icon of a file's content type, kept
// up to date with its selection.
void AddFileInfo(QFileDialog& dialog, QGridLayout& grid) {
    auto* panel = new QWidget(&dialog);
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(0, 0, 0, 0);
    auto* icon = new QLabel(panel);
    icon->setObjectName("FileInfoIcon");
    icon->setFixedSize(32, 32);
    row->addWidget(icon, 0, Qt::AlignTop);
    auto* texts = new QVBoxLayout;
    row->addLayout(texts, 1);
    const char* names[] = {"FileInfoFolder", "FileInfoSize", "FileInfoType"};
    QLabel* labels[3];
    for (int i = 0; i < 3; ++i) {
        labels[i] = new QLabel(panel);
        labels[i]->setObjectName(names[i]);
        texts->addWidget(labels[i]);
    }
    grid.addWidget(panel, grid.rowCount(), 0, 1, grid.columnCount());
    auto update = [&dialog, labels, icon](const QString& current) {
        // Several selected files are listed; otherwise the one under the cursor counts.
        QStringList selected = dialog.selectedFiles();
        if (selected.size() <= 1)
            selected = current.isEmpty() ? QStringList() : QStringList{current};
        std::vector<std::string> paths;
        for (const QString& path : selected)
            paths.push_back(FromQString(path));
        const FileInfoTexts texts = FileInfo(paths);
        labels[0]->setText(ToQString(texts.folder));
        labels[1]->setText(ToQString(texts.info));
        labels[2]->setText(ToQString(texts.type));
        icon->setPixmap(texts.icon > 0 ? ContentIcon(texts.icon).pixmap(32, 32) : QPixmap());
    };
    QObject::connect(&dialog, &QFileDialog::currentChanged, &dialog, update);
    update(QString());
}

}  // namespace

FileDialogResult ShowFileDialog(QWidget* parent, const FileDialogRequest& request) {
    QFileDialog dialog(parent, ToQString(request.title), ToQString(request.startFolder));
    dialog.setObjectName("FileDialog");
    // The widget dialog, so that the read-only box and the labels can be set.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(request.save          ? QFileDialog::AnyFile
                       : request.multiSelect ? QFileDialog::ExistingFiles
                                             : QFileDialog::ExistingFile);
    dialog.setLabelText(QFileDialog::Accept, ToQString(request.actionButton));
    dialog.setLabelText(QFileDialog::Reject, "Cancel");
    QStringList filters;
    for (const auto& [label, patterns] : request.filters)
        filters << FilterText(label, patterns);
    dialog.setNameFilters(filters);
    if (request.preselectedFilter >= 1 && request.preselectedFilter <= filters.size())
        dialog.selectNameFilter(filters[request.preselectedFilter - 1]);
    if (!request.fileName.empty())
        dialog.selectFile(ToQString(request.fileName));
    QCheckBox* readOnly = nullptr;
    if (auto* grid = qobject_cast<QGridLayout*>(dialog.layout())) {
        if (request.readOnlyBox && !request.save) {
            readOnly = new QCheckBox("Open as read-only", &dialog);
            readOnly->setObjectName("ReadOnlyBox");
            grid->addWidget(readOnly, grid->rowCount(), 0, 1, grid->columnCount());
        }
        AddFileInfo(dialog, *grid);
    }
    FileDialogResult result;
    if (dialog.exec() != QDialog::Accepted)
        return result;
    for (const QString& path : dialog.selectedFiles())
        result.paths.push_back(FromQString(path));
    result.readOnly = readOnly && readOnly->isChecked();
    return result;
}

}  // namespace zvx
