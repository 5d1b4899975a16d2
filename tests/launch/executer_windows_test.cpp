#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTimer>
#include <QTreeView>

#include "common/common.h"
#include "document/entry_list_model.h"
#include "launch/ZVXPlay01.h"
#include "platform/catalogue_path.h"
#include "support/catalogue_bytes.h"
#include "support/scripted_screen.h"
#include "support/temp_folder.h"
#include "ui/desktop.h"

namespace zvx::test {
namespace {

class FakeDesktop : public Desktop {
  public:
    bool openUrl(const QUrl& url) override {
        opened.push_back(url.toLocalFile().toStdString());
        return true;
    }
    std::vector<std::string> opened;
};

QString Text(QWidget& window, const char* label) {
    return window.findChild<QLabel*>(label)->text();
}

TEST(ExecuterWindows, TheMissingFileDialogTellsItsTextsAndStaysAfterAFailedAttempt) {
    TempFolder folder;
    WriteAll(folder.path() / "here.mp3", "x");
    const std::string path = CataloguePathFromNative(folder.path().string());
    QStandardItemModel model;
    for (const char* name : {"gone.mp3", "here.mp3", "other.mp3"}) {
        auto* item = new QStandardItem(name);
        item->setData(QByteArray::fromStdString(EntryLineOf("00000001", {name, "1", path})),
                      EntryListModel::TagRole);
        model.appendRow(item);
    }
    QTreeView list;
    list.setObjectName("ListView1");
    list.setSelectionMode(QAbstractItemView::MultiSelection);
    list.setModel(&model);
    list.selectionModel()->select(model.index(0, 0), QItemSelectionModel::Select);
    list.selectionModel()->select(model.index(1, 0), QItemSelectionModel::Select);
    ScriptedScreen screen;
    Common common(folder.path(), folder.path(), screen);
    FakeDesktop desktop;
    ZVXPlay01 window(common, &list, desktop);

    bool asked = false;
    QTimer::singleShot(0, [&] {
        auto* wait = new QTimer(&window);
        QObject::connect(wait, &QTimer::timeout, [&, wait] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (!dialog || dialog->objectName() != "ZVXPlay02")
                return;
            wait->stop();
            asked = true;
            EXPECT_FALSE(list.isEnabled());
            EXPECT_EQ(Text(window, "Label1").toStdString(), "File: " + path + "\\gone.mp3");
            EXPECT_EQ(dialog->windowTitle(), "File not found on device.");
            EXPECT_EQ(Text(*dialog, "Label2").toStdString(), path + "\\gone.mp3");
            EXPECT_EQ(Text(*dialog, "Label4"), "Device ID: <NONE>");
            EXPECT_EQ(Text(*dialog, "Label5"), "Device description: <NONE>");
            dialog->findChild<QComboBox*>("Drive1")->setEditText("/nowhere at all");
            dialog->findChild<QPushButton*>("FlatBttn1")->click();
            EXPECT_TRUE(dialog->isVisible());
            dialog->findChild<QPushButton*>("FlatBttn2")->click();
        });
        wait->start(5);
    });
    window.exec();
    EXPECT_TRUE(asked);
    EXPECT_EQ(screen.shown.at(0).caption, "No File!");
    EXPECT_EQ(desktop.opened, std::vector<std::string>({(folder.path() / "here.mp3").string()}));
    EXPECT_TRUE(list.isEnabled());
}

}  // namespace
}  // namespace zvx::test
