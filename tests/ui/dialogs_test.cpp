#include <gtest/gtest.h>
#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "platform/file_error.h"
#include "support/temp_folder.h"
#include "ui/command_guard.h"
#include "ui/doubledetect.h"
#include "ui/file_dialog.h"
#include "ui/text_codec.h"
#include "ui/zvx_application.h"

namespace zvx {
namespace {

// Runs `answer` on the modal dialog once it is up.
void WhenModal(std::function<void(QWidget*)> answer) {
    QTimer::singleShot(50, [answer] { answer(QApplication::activeModalWidget()); });
}

TEST(DoubleDetect, ShowsBothEntriesAndAnswersByItsButtons) {
    DuplicateQuestion q{"a.mp3", "10", "01-01-2000", "a.mp3", "99", "02-02-2002"};
    WhenModal([](QWidget* dialog) {
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle(), "ZVX - Entry does already exist");
        EXPECT_EQ(dialog->findChild<QLabel*>("oldsize")->text(), "10");
        EXPECT_EQ(dialog->findChild<QLabel*>("newdate")->text(), "02-02-2002");
        dialog->findChild<QPushButton*>("Command3")->click();
    });
    EXPECT_EQ(ShowDoubleDetect(nullptr, q), "delold");
}

TEST(FileDialog, OpenDialogOffersTheReadOnlyBoxAndShowsWhatIsSelected) {
    test::TempFolder folder;
    test::WriteAll(folder / "music.zvx", std::string(1234, 'x'));
    FileDialogRequest request;
    request.title = "ZVX-Explorer - Load ZVX...";
    request.actionButton = "Load";
    request.startFolder = folder.path().string();
    request.filters = {{"ZVX-Documents (*.zvx)", "*.zvx"}};
    request.readOnlyBox = true;
    WhenModal([&](QWidget* widget) {
        auto* dialog = qobject_cast<QFileDialog*>(widget);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle(), "ZVX-Explorer - Load ZVX...");
        EXPECT_EQ(dialog->labelText(QFileDialog::Accept), "Load");
        dialog->selectFile(ToQString((folder / "music.zvx").string()));
        emit dialog->currentChanged(ToQString((folder / "music.zvx").string()));
        EXPECT_EQ(dialog->findChild<QLabel*>("FileInfoSize")->text(), " (1234 bytes)");
        EXPECT_FALSE(dialog->findChild<QLabel*>("FileInfoIcon")->pixmap().isNull());
        dialog->findChild<QCheckBox*>("ReadOnlyBox")->setChecked(true);
        dialog->grab().save(QString(ZVX_SCREENSHOT_DIR) + "/file_dialog_load.png");
        // The dialog reads its folder in the background: accept once it has.
        QTimer::singleShot(300, dialog, [dialog] {
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText("music.zvx");
            QMetaObject::invokeMethod(dialog, "accept");
        });
        QTimer::singleShot(3000, dialog, [dialog] { QMetaObject::invokeMethod(dialog, "reject"); });
    });
    FileDialogResult result = ShowFileDialog(nullptr, request);
    ASSERT_EQ(result.paths.size(), 1u);
    EXPECT_EQ(result.paths[0], (folder / "music.zvx").string());
    EXPECT_TRUE(result.readOnly);
}

TEST(FileDialog, AllFilesTakesNamesWithoutADot) {
    EXPECT_EQ(FilterText("All Files (*.*)", "*.*"), "All Files (*)");
    EXPECT_EQ(FilterText("MP3-Audio-Files (*.mp3)", "*.mp3"), "MP3-Audio-Files (*.mp3)");
    EXPECT_EQ(FilterText("Audio", "*.mp3;*.wav"), "Audio (*.mp3 *.wav)");
}

TEST(TextCodec, Windows1252FieldsShowTheirLetters) {
    EXPECT_EQ(ToQString("caf\xE9 \x80"), QString::fromUtf8("café €"));
    EXPECT_EQ(ToQString("café"), QString::fromUtf8("café"));
}

TEST(ZvxApplication, AnExceptionEscapingAnEventHandlerIsToldAndTheLoopGoesOn) {
    auto& app = static_cast<ZvxApplication&>(*QApplication::instance());
    std::vector<ErrorReport> told;
    app.onException = [&told](std::exception_ptr error) { told.push_back(ReportOf(error)); };
    QTimer::singleShot(0, [] { throw FileError(61, "/full/disk", "write /full/disk: no space"); });
    QTimer::singleShot(0, [] { throw std::bad_alloc(); });
    QTimer::singleShot(0, [] { throw std::logic_error("a broken rule"); });
    bool wentOn = false;
    QTimer::singleShot(5, [&wentOn] { wentOn = true; });
    QTimer::singleShot(100, [] { QApplication::exit(0); });
    QApplication::exec();
    app.onException = nullptr;
    ASSERT_EQ(told.size(), 3u);
    EXPECT_EQ(ErrorBoxText(told[0]), "Error 61: write /full/disk: no space");
    EXPECT_EQ(told[1].number, 7);
    EXPECT_EQ(ErrorBoxText(told[2]), "Error 51: a broken rule");
    EXPECT_TRUE(wentOn);
}

}  // namespace
}  // namespace zvx
