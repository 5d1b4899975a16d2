#include "ui/qt_screen.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>

#include "ui/doubledetect.h"
#include "ui/file_dialog.h"
#include "ui/text_codec.h"

namespace zvx {

namespace {

constexpr const char* kProgramTitle = "ZVX";

QMessageBox::StandardButtons ButtonsOf(MsgButtons buttons) {
    switch (buttons) {
        case MsgButtons::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case MsgButtons::AbortRetryIgnore:
            return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
        case MsgButtons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case MsgButtons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case MsgButtons::RetryCancel:
            return QMessageBox::Retry | QMessageBox::Cancel;
        case MsgButtons::OkOnly:
            break;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon IconOf(MsgIcon icon) {
    switch (icon) {
        case MsgIcon::Critical:
            return QMessageBox::Critical;
        case MsgIcon::Question:
            return QMessageBox::Question;
        case MsgIcon::Exclamation:
            return QMessageBox::Warning;
        case MsgIcon::Information:
            return QMessageBox::Information;
        case MsgIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

MsgAnswer AnswerOf(int button) {
    switch (button) {
        case QMessageBox::Cancel:
            return MsgAnswer::Cancel;
        case QMessageBox::Abort:
            return MsgAnswer::Abort;
        case QMessageBox::Retry:
            return MsgAnswer::Retry;
        case QMessageBox::Ignore:
            return MsgAnswer::Ignore;
        case QMessageBox::Yes:
            return MsgAnswer::Yes;
        case QMessageBox::No:
            return MsgAnswer::No;
        default:
            return MsgAnswer::Ok;
    }
}

}  // namespace

MsgAnswer QtScreen::message(const std::string& caption, const std::string& text, MsgButtons buttons,
                            MsgIcon icon) {
    QMessageBox box(IconOf(icon), caption.empty() ? kProgramTitle : ToQString(caption),
                    ToQString(text).replace("\r\n", "\n").replace(QChar('\r'), QChar('\n')),
                    ButtonsOf(buttons), parent());
    box.setObjectName("MsgBox");
    return AnswerOf(box.exec());
}

std::string QtScreen::input(const std::string& caption, const std::string& prompt,
                            const std::string& defaultText) {
    QInputDialog dialog(parent());
    dialog.setObjectName("InputBox");
    dialog.setWindowTitle(caption.empty() ? kProgramTitle : ToQString(caption));
    dialog.setLabelText(ToQString(prompt));
    dialog.setTextValue(ToQString(defaultText));
    // A cancelled input box gives the empty text.
    return dialog.exec() == QDialog::Accepted ? FromQString(dialog.textValue()) : std::string();
}

std::string QtScreen::doubledetect(const DuplicateQuestion& question) {
    return ShowDoubleDetect(parent(), question);
}

FileDialogResult QtScreen::fileDialog(const FileDialogRequest& request) {
    return ShowFileDialog(parent(), request);
}

void QtScreen::status(const std::string& text) {
    if (onStatus)
        onStatus(text);
}

void QtScreen::progress(long long value, long long maximum) {
    if (onProgress)
        onProgress(value, maximum);
}

}  // namespace zvx
