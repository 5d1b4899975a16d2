#pragma once
// The one way a core routine talks to the person in the middle of its work.
// The window program answers with real dialogs, zvxcat with flags or a terminal,
// tests with a script.

#include <string>
#include <utility>
#include <vector>

namespace zvx {

enum class MsgButtons { OkOnly, OkCancel, AbortRetryIgnore, YesNoCancel, YesNo, RetryCancel };
enum class MsgIcon { None, Critical, Question, Exclamation, Information };
enum class MsgAnswer { Ok, Cancel, Abort, Retry, Ignore, Yes, No };

// The six texts of the duplicate question: name, size and date of the entry already
// in the file, then of the entry about to be written.
struct DuplicateQuestion {
    std::string oldname, oldsize, olddate;
    std::string newname, newsize, newdate;
};

// The shared file dialog: what it shows and what was chosen.
struct FileDialogRequest {
    std::string title;
    std::string actionButton;  // the label of the button that accepts
    std::string startFolder;
    std::string fileName;  // the proposed name of a save dialog
    // Label and pattern list of each filter, e.g. {"ZVX-Documents (*.zvx)", "*.zvx"}.
    std::vector<std::pair<std::string, std::string>> filters;
    int preselectedFilter = 1;  // 1-based
    bool save = false;          // a save dialog; otherwise an open dialog
    bool multiSelect = false;
    bool readOnlyBox = false;  // an open dialog offers the read-only check box
};

struct FileDialogResult {
    std::vector<std::string> paths;  // empty when cancelled
    bool readOnly = false;           // the read-only box was ticked
};

class Screen {
  public:
    virtual ~Screen() = default;

    // A message box. An empty caption is shown as the program's title.
    virtual MsgAnswer message(const std::string& caption, const std::string& text,
                              MsgButtons buttons, MsgIcon icon) = 0;
    // An input box; a cancelled box gives the empty text.
    virtual std::string input(const std::string& caption, const std::string& prompt,
                              const std::string& defaultText) = 0;
    // The duplicate dialog: gives "keepold", "keepall", "delold" or "delall".
    virtual std::string doubledetect(const DuplicateQuestion& question) = 0;
    // The shared file dialog.
    virtual FileDialogResult fileDialog(const FileDialogRequest& request) = 0;
    // The status bar's text; the empty text clears it.
    virtual void status(const std::string& text) = 0;
    // Progress of a long operation; a maximum of 0 hides the bar.
    virtual void progress(long long value, long long maximum) = 0;
};

}  // namespace zvx
