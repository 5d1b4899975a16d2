#pragma once
// Journeys: the whole window program started in the test process through its real
// start-up (splash, welcome window, main window) and driven as a person would, by
// clicking widgets and menu entries, while every question it asks is answered from a
// script. A step waits until the program shows what it needs (a dialog, the idle main
// window), then acts; the program runs until it ends by itself, as at a real Quit.

#include <QStringList>
#include <QWidget>
#include <deque>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "support/temp_folder.h"
#include "ui/desktop.h"
#include "ui/qt_screen.h"

namespace zvx {
class frmDocument;
class frmMain;
}  // namespace zvx

namespace zvx::test {

// The program's questions, answered in the order they are scripted. A question that
// nobody scripted, or that differs from the script, fails the test and gets the
// cautious answer (No, Cancel), so that the journey can still end.
class JourneyScreen : public QtScreen {
  public:
    // The next message box has this caption (and its text holds `textPart`).
    void expectMessage(const std::string& caption, MsgAnswer answer,
                       const std::string& textPart = "");
    void expectInput(const std::string& caption, const std::string& answer);
    // The next file dialog has this title; an empty list of paths cancels it.
    void expectFileDialog(const std::string& title, const FileDialogResult& answer);
    // The next duplicate question is answered with "keepold", "keepall", "delold" or
    // "delall".
    void expectDuplicate(const std::string& choice);

    MsgAnswer message(const std::string& caption, const std::string& text, MsgButtons buttons,
                      MsgIcon icon) override;
    std::string input(const std::string& caption, const std::string& prompt,
                      const std::string& defaultText) override;
    std::string doubledetect(const DuplicateQuestion& question) override;
    FileDialogResult fileDialog(const FileDialogRequest& request) override;

    // Called with the caption of each message box as it comes, before it is answered.
    std::function<void(const std::string&)> onMessage;
    // Every caption asked, in order.
    std::vector<std::string> asked;
    size_t unanswered() const { return script_.size(); }
    // After a journey has failed, questions get the cautious answer without a fault.
    bool lenient = false;

  private:
    struct Expected {
        std::string kind;
        std::string caption;
        std::string textPart;
        MsgAnswer answer = MsgAnswer::Ok;
        std::string text;
        FileDialogResult files;
    };
    const Expected* next(const std::string& kind, const std::string& caption,
                         const std::string& text);
    Expected taken_;
    std::deque<Expected> script_;
};

// The desktop of a journey: what the program asked it to open, and nothing opened.
class RecordingDesktop : public Desktop {
  public:
    bool openUrl(const QUrl& url) override {
        opened.push_back(url);
        return true;
    }
    std::vector<QUrl> opened;
};

class Journey {
  public:
    // A fresh application folder, named to the program by ZVX_HOME.
    Journey();
    ~Journey();

    const std::filesystem::path& appFolder() const { return folder_.path(); }
    // A folder for the person's own files, outside the application folder.
    std::filesystem::path userFolder() const { return userFolder_.path(); }

    // Once `ready` holds, `act` runs, from whatever event loop is running then.
    void step(const std::string& what, std::function<bool()> ready, std::function<void()> act);
    // A step on the dialog or window with this object name, once it is the one in front.
    void onWindow(const std::string& objectName, std::function<void(QWidget&)> act);
    // A step on the main window once it is shown with no dialog in front.
    void onMain(const std::string& what, std::function<void(frmMain&)> act);

    // Starts the program with this command line and returns its exit code once it has
    // ended; a journey that gets stuck fails and is brought to an end.
    int run(const std::string& commandLine = "");

    // The regular files of the application folder that match *.tmp or *.zvd.
    std::vector<std::string> temporaryFiles() const;

    JourneyScreen screen;
    RecordingDesktop desktop;

  private:
    struct Step {
        std::string what;
        std::function<bool()> ready;
        std::function<void()> act;
    };
    void tick();
    void bringToAnEnd();

    TempFolder folder_;
    TempFolder userFolder_;
    std::string previousHome_;
    std::vector<Step> steps_;
    size_t next_ = 0;
    bool acting_ = false;
    bool stuck_ = false;
};

// The main window of the running program, or null.
frmMain* MainWindow();
// Clicks a button of a window by its object name (fails the test when it is missing).
void Click(QWidget& window, const char* buttonName);
// Triggers a menu entry of the main window by its key, as a click on it would.
void Choose(frmMain& main, const char* menuKey);
// Whether the main window's menu entry of this key is enabled.
bool MenuEnabled(frmMain& main, const char* menuKey);
// Whether the tool bar's button or drop-down item with this tag is enabled.
bool ToolItemEnabled(frmMain& main, const QString& tag);

// Types into a line edit of the window, in place of its text.
void Type(QWidget& window, const char* field, const QString& text);
// Names a new folder in the folder dialog: below the selected folder, or at the root.
void NameNewFolder(Journey& journey, const QString& name, bool atRoot);

// The active document window, or null.
frmDocument* ActiveDocument(frmMain& main);
// The folders of the document's tree by their paths ("Music\Rock"), top to bottom.
QStringList FolderPaths(frmDocument& document);
// Clicks a folder of the tree, found by its path.
void ClickFolder(frmDocument& document, const QString& path);
// Clicks a row of the entry list; with Shift or Ctrl it extends the selection.
void ClickRow(frmDocument& document, int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
// The number of rows the entry list shows.
int RowCount(frmDocument& document);

}  // namespace zvx::test
