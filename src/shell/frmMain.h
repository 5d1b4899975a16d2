#pragma once
// The main window: the frame of the document windows, the menus, the tool bars, the
// status bar and the timers. Every command arrives here by name at ZVXCoreCalls.

#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <memory>
#include <string>

#include "document/document_lifecycle.h"
#include "document/document_view.h"
#include "exchange/exchange_runs.h"
#include "exchange/export_prep.h"
#include "extensions/extension_host.h"
#include "shell/command_table.h"
#include "shell/estimator.h"
#include "shell/status_line.h"
#include "shell/tool_bar.h"
#include "shell/window_settings.h"

class QAction;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QProgressBar;
class QTimer;
class QToolBar;

namespace zvx {

class Clock;
class Common;
class Desktop;
class NewsPanel;
class frmDocument;
class frmSplash;
class searcher;

class frmMain : public QMainWindow, public DocumentWindows, private ExtensionWindows {
    Q_OBJECT
  public:
    // Questions go to the common module's Screen; the front end routes the Screen's
    // status and progress to status() and progress(). The wait for an extension keeps to
    // `extensionWait`.
    frmMain(Common& common, Desktop& desktop, const Clock& clock,
            const WaitTimings& extensionWait = {});
    ~frmMain() override;

    // The load handler: recent files, geometry, bars, panels, the empty selection.
    void MDIForm_Load();

    // Runs the command of a name; an unknown name is ignored. A command that fails shows
    // the error box, and the program goes on.
    void ZVXCoreCalls(const std::string& name);
    // Asks whether to quit; on Yes the window unloads and the process ends.
    void AskQuit();

    // Status bar: the status text, the estimate, the selection summary.
    void status(const std::string& text);
    void eStimaToR();
    void progress(long long value, long long maximum);
    void setSummary(const QString& text);

    void RecentRefresh();
    // Rebuilds the menu of column settings from the .zvl files.
    void CheadRefresh();
    // The view menu's checks for the active window: sub-view and list style.
    void RealMenuSelectionizer();
    void barmenustate();
    void RealSelectionizer(const SelectionState& state, bool keepFolderItems);
    // The document menus off and the tool bar as with no document: while the search
    // window is in front no document command can run.
    void disableDocumentMenus();
    // searchmnu_Click's window: "Search ZVX", made on first use, refilled and shown on
    // the document of this caption.
    void showSearcher(const std::string& caption);
    // Applies the active document's selection to menus and tool bar (none: all off), and
    // its view to the view menu's checks.
    void updateDocumentState();

    // The add-ons' menu items from addlist.tmp, and their tool bar shortcuts (noplan);
    // both once at the start.
    void AddOnsShow();
    void MenuMakerYo();
    ExtensionHost& extensions() { return *extensions_; }

    // The splash window of the start, removed by nosplash.
    void setSplash(frmSplash* splash);
    void nosplash();

    DocumentLifecycle& lifecycle() { return *lifecycle_; }
    NewsPanel* newsPanel() const { return news_; }
    QMdiArea* mdiArea() const { return mdi_; }
    QAction* menuEntry(const QString& key) const;
    // The window has been unloaded: the process is ending.
    bool unloaded() const { return unloaded_; }
    // Called at the end of the unload; the program ends its event loop there.
    std::function<void()> onUnloaded;

    // DocumentWindows
    DocumentView* createView(const std::string& caption) override;
    void closeView(DocumentView* view) override;
    DocumentView* activeView() const override;
    DocumentView* lastActiveView() const override;

  protected:
    // The unload handler: ZVXQUIT, the lasting settings, the documents' own close
    // sequences, the clean-up window, and the end of the process.
    void closeEvent(QCloseEvent* event) override;

  private:
    // ExtensionWindows
    HandOverFacts handOverFacts() const override;
    void repaintActive() override;
    void showWait(const std::string& exeName, const WaitMode& wait) override;
    void eventCall(AddOnEventCall call) override;
    // The exchange dialogs: export.tmp made from the document (the whole, the selected
    // folder or its sub-tree), then the export dialog; the import dialog on the document.
    void exportFrom(frmDocument& document, ExportSource source);
    void showExport();
    void showImport(frmDocument& document);
    FilterRunner filterRunner();
    // entryaddons(N): the add-on of the menu item of this key.
    void runAddOnItem(const std::string& key);
    QMenu* addOnParent(const std::string& key);

    void buildMenus();
    searcher* activeSearcher() const;
    void subWindowActivated(QMdiSubWindow* window);
    frmDocument* activeDocument() const;
    // The active window: a window with a list of its own when it is the one in front,
    // otherwise the active child window (a document or the search window); null when
    // there is none.
    QWidget* activeForm() const;
    // entry_execute and search_results_execute: the executer over ListView1 of the
    // active window.
    void executeEntries();
    void runCommand(const ResolvedCommand& resolved);
    void documentCommand(Command command);
    void unloadOtherWindows();
    void loadColumnSetting(const std::string& number);
    void saveColumnSetting();
    void buildToolBars();
    void buildStatusBar();
    QAction* addEntry(QMenu* menu, const char* key, const QString& caption,
                      const QString& icon = {}, const QKeySequence& keys = {});
    void toggleBar(int index);
    void toggleNewsPanel();
    void openRecent(const std::string& number);
    void showAbout();
    void applyWindowSettings(const WindowSettings& settings);
    WindowSettings currentWindowSettings() const;
    void pollCommandFile();
    void resetProgressBar();
    void showDate();

    Common& common_;
    Desktop& desktop_;
    Estimator estimator_;
    StatusLine statusLine_;
    std::unique_ptr<DocumentLifecycle> lifecycle_;
    std::unique_ptr<class CommandFilePoll> poll_;
    WaitTimings extensionWait_;
    std::unique_ptr<ExtensionHost> extensions_;
    QToolBar* noplan_ = nullptr;
    QMdiArea* mdi_;
    QPointer<searcher> searcher_;
    // The child window activated last: a window's activation counts only when it comes
    // from another child window, not back from a dialog or another program.
    QPointer<QMdiSubWindow> lastActivated_;
    QPointer<QMdiSubWindow> lastDocument_;
    NewsPanel* news_;
    QMenu* fileMenu_ = nullptr;
    QMenu* columnMenu_ = nullptr;
    QMenu* folderMenu_ = nullptr;
    QMenu* entryMenu_ = nullptr;
    // The add-ons of the sections "SELECT" and "ADDONS"; hidden while they have none.
    QMenu* selectionAddOns_ = nullptr;
    QMenu* addOnMenu_ = nullptr;
    QAction* recentTOP_ = nullptr;
    QToolBar* Toolbar1_ = nullptr;
    QToolBar* ViewBar_ = nullptr;
    QToolBar* ProgressBand_ = nullptr;
    QProgressBar* ProgressBar1_ = nullptr;
    QLabel* panels_[3] = {};
    QTimer* Timer1_;
    QTimer* Timer2_;
    QTimer* Timer5_;
    BarFlags bars_ = {true, false, false, true};
    frmSplash* splash_ = nullptr;
    bool busy_ = false;
    bool unloaded_ = false;
    // The copy or move state: "init" while a drop of entries waits for the choice of
    // entry_copy or entry_move, which then sets "copy" or "move" instead of running.
    std::string copyMoveState_;
};

}  // namespace zvx
