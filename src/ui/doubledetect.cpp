#include "ui/doubledetect.h"

#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "store/duplicate_check.h"
#include "ui/text_codec.h"

namespace zvx {

namespace {

QGroupBox* FileFrame(const QString& title, const QString& prefix, const std::string& name,
                     const std::string& size, const std::string& date) {
    auto* frame = new QGroupBox(title);
    auto* grid = new QGridLayout(frame);
    const std::pair<const char*, const std::string*> rows[] = {
        {"Name:", &name}, {"Size:", &size}, {"Date:", &date}};
    const char* names[] = {"name", "size", "date"};
    for (int i = 0; i < 3; ++i) {
        grid->addWidget(new QLabel(rows[i].first), i, 0);
        auto* value = new QLabel(ToQString(*rows[i].second));
        value->setObjectName(prefix + names[i]);
        grid->addWidget(value, i, 1);
    }
    return frame;
}

}  // namespace

std::string ShowDoubleDetect(QWidget* parent, const DuplicateQuestion& q) {
    QDialog dialog(parent);
    dialog.setObjectName("doubledetect");
    dialog.setWindowTitle("ZVX - Entry does already exist");
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QLabel("You are adding a file that does already in the target-folder."));
    layout->addWidget(FileFrame("Old file:", "old", q.oldname, q.oldsize, q.olddate));
    layout->addWidget(FileFrame("New file:", "new", q.newname, q.newsize, q.newdate));
    auto* buttons = new QHBoxLayout;
    layout->addLayout(buttons);
    std::string choice = kKeepOld;
    const std::pair<const char*, const char*> answers[] = {{"Keep old", kKeepOld},
                                                           {"Keep all", kKeepAll},
                                                           {"Overwrite old", kDelOld},
                                                           {"Overwrite all", kDelAll}};
    const char* objectNames[] = {"Command1", "command2", "Command3", "Command4"};
    for (int i = 0; i < 4; ++i) {
        auto* button = new QPushButton(answers[i].first);
        button->setObjectName(objectNames[i]);
        const char* value = answers[i].second;
        QObject::connect(button, &QPushButton::clicked, &dialog, [&dialog, &choice, value] {
            choice = value;
            dialog.accept();
        });
        buttons->addWidget(button);
    }
    dialog.exec();
    return choice;
}

}  // namespace zvx
