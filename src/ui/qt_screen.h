#pragma once
// The Screen of the window program: real message boxes, input boxes and dialogs. The
// status bar and the progress bar belong to the main window, which installs itself.

#include <functional>

#include "common/screen.h"

class QWidget;

namespace zvx {

class QtScreen : public Screen {
  public:
    MsgAnswer message(const std::string& caption, const std::string& text, MsgButtons buttons,
                      MsgIcon icon) override;
    std::string input(const std::string& caption, const std::string& prompt,
                      const std::string& defaultText) override;
    std::string doubledetect(const DuplicateQuestion& question) override;
    FileDialogResult fileDialog(const FileDialogRequest& request) override;
    void status(const std::string& text) override;
    void progress(long long value, long long maximum) override;

    // The window that owns the dialogs, and the main window's status and progress.
    std::function<QWidget*()> parentWindow;
    std::function<void(const std::string&)> onStatus;
    std::function<void(long long, long long)> onProgress;

  private:
    QWidget* parent() const { return parentWindow ? parentWindow() : nullptr; }
};

}  // namespace zvx
