#include "shell/frmMain.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTimer>
#include <algorithm>

#include "adding/cdwizard.h"
#include "adding/insertlist.h"
#include "common/common.h"
#include "document/frmDocument.h"
#include "document/list_appearance.h"
#include "extensions/addon_menus.h"
#include "finding/searcher.h"
#include "launch/ZVXPlay01.h"
#include "shell/cleanup_window.h"
#include "shell/column_setting_name.h"
#include "shell/command_file.h"
#include "shell/command_table.h"
#include "shell/frmSplash.h"
#include "shell/recent_list.h"
#include "shell/window_arrangement.h"
#include "ui/about.h"
#include "ui/command_guard.h"
#include "ui/icons.h"
#include "ui/main_background.h"
#include "ui/news_panel.h"
#include "ui/text_codec.h"

namespace zvx {

frmMain::frmMain(Common& common, Desktop& desktop, const Clock& clock,
                 const WaitTimings& extensionWait)
    : common_(common),
      desktop_(desktop),
      estimator_(clock),
      statusLine_(estimator_),
      extensionWait_(extensionWait) {
    setObjectName("frmMain");
    setWindowTitle("ZVX");
    setWindowIcon(ThemeIcon("zvx"));
    mdi_ = new QMdiArea;
    mdi_->setBackground(MainBackground());
    mdi_->setObjectName("MDIClient");
    setCentralWidget(mdi_);
    news_ = new NewsPanel(this);
    addDockWidget(Qt::RightDockWidgetArea, news_);

    lifecycle_ = std::make_unique<DocumentLifecycle>(
        common_, *this, [this](const std::string& path) { RecentAdd(common_, path); });
    common_.onRecentRefresh = [this] { RecentRefresh(); };
    poll_ = std::make_unique<CommandFilePoll>(
        common_,
        [this] {
            raise();
            activateWindow();
        },
        [this](const std::string&) { lifecycle_->LoadDoc(); });
    extensions_ = std::make_unique<ExtensionHost>(common_, static_cast<ExtensionWindows&>(*this));
    common_.onPlugStart = [this](const std::string& name) { extensions_->PLUGSTART(name); };

    buildMenus();
    buildToolBars();
    buildStatusBar();
    connect(mdi_, &QMdiArea::subWindowActivated, this, &frmMain::subWindowActivated);
}

frmMain::~frmMain() {
    common_.onRecentRefresh = nullptr;
    common_.onPlugStart = nullptr;
}

void frmMain::MDIForm_Load() {
    LoadRecentList(common_);
    RecentRefresh();
    CheadRefresh();
    WindowSettings settings = LoadWindowSettings(common_);
    applyWindowSettings(settings);
    resizeDocks({news_}, {220}, Qt::Horizontal);
    bars_ = settings.bars;
    barmenustate();
    updateDocumentState();
}

void frmMain::ZVXCoreCalls(const std::string& name) {
    RunGuarded(common_, [this, &name] { runCommand(ResolveCommand(name)); });
}

void frmMain::runCommand(const ResolvedCommand& resolved) {
    switch (resolved.command) {
        case Command::ToolbarsStandard:
            toggleBar(0);
            break;
        case Command::ToolbarsProgress:
            toggleBar(3);
            break;
        case Command::ToolbarsNewsclient:
            toggleNewsPanel();
            break;
        case Command::WindowsCascade:
            ArrangeSubWindows(mdi_, Arrangement::Cascade);
            break;
        case Command::WindowsTile:
            ArrangeSubWindows(mdi_, Arrangement::TileHorizontal);
            break;
        case Command::WindowsSplit:
            ArrangeSubWindows(mdi_, Arrangement::TileVertical);
            break;
        case Command::WindowsArrangeIcons:
            ArrangeSubWindows(mdi_, Arrangement::Icons);
            break;
        case Command::About:
            showAbout();
            break;
        case Command::DocumentNew:
            lifecycle_->LoadNewDoc();
            break;
        case Command::DocumentOpen:
            lifecycle_->LoadDoc();
            break;
        case Command::DocumentSave:
            if (Document* document = lifecycle_->active())
                lifecycle_->SaveDoc(*document);
            break;
        case Command::DocumentSaveAs:
            if (Document* document = lifecycle_->active())
                lifecycle_->SaveAsDoc(*document);
            break;
        case Command::DocumentClose:
            if (QMdiSubWindow* window = mdi_->currentSubWindow())
                window->close();
            break;
        case Command::Quit:
            AskQuit();
            break;
        case Command::RecentFile:
            openRecent(resolved.argument);
            break;
        case Command::ColumnSetting:
            loadColumnSetting(resolved.argument);
            break;
        case Command::AddOn:
            runAddOnItem(kAddOnKeyPrefix + resolved.argument);
            break;
        case Command::ViewSaveColumns:
            saveColumnSetting();
            break;
        case Command::EntryExecute:
        case Command::SearchResultsExecute:
            executeEntries();
            break;
        case Command::None:
            break;
        default:
            documentCommand(resolved.command);
            break;
    }
}

frmDocument* frmMain::activeDocument() const {
    return dynamic_cast<frmDocument*>(activeView());
}

QWidget* frmMain::activeForm() const {
    // A window of its own in front counts when it has a list; the splash, say, has none.
    QWidget* front = QApplication::activeWindow();
    if (front && front != this && front->findChild<QAbstractItemView*>("ListView1"))
        return front;
    QMdiSubWindow* child = mdi_->currentSubWindow();
    return child ? child->widget() : nullptr;
}

void frmMain::executeEntries() {
    QWidget* form = activeForm();
    ZVXPlay01 window(common_, form ? form->findChild<QAbstractItemView*>("ListView1") : nullptr,
                     desktop_, this);
    window.exec();
}

// The commands that act on the active document window.
void frmMain::documentCommand(Command command) {
    frmDocument* document = activeDocument();
    if (!document)
        return;
    switch (command) {
        case Command::EntryAddWizard: {
            cdwizard wizard(common_, *document, MountedDrives(), this);
            wizard.exec();
            break;
        }
        case Command::EntryAddManually: {
            insertlist form(common_, *document, this);
            form.start();
            break;
        }
        case Command::FolderCreate:
            document->crefolder_Click();
            break;
        case Command::FolderProperties:
            document->Folderprefs_Click();
            break;
        case Command::FolderMove:
            document->movfolder_Click();
            break;
        case Command::FolderDelete:
            document->delFolder_Click();
            break;
        case Command::DocumentExport:
            exportFrom(*document, ExportSource::Document);
            break;
        case Command::ExportSelection:
            exportFrom(*document, ExportSource::Folder);
            break;
        case Command::ExportSelSub:
            exportFrom(*document, ExportSource::SubTree);
            break;
        case Command::DocumentImport:
            showImport(*document);
            break;
        case Command::FolderExpandSel:
            document->expselmnu_Click();
            break;
        case Command::FolderCollapseSel:
            document->incselmnu_Click();
            break;
        case Command::FolderExpandAll:
            document->expandmnu_Click();
            break;
        case Command::FolderCollapseAll:
            document->increasemnu_Click();
            break;
        case Command::ViewSubView:
            document->setSubViewing(!document->SubViewIng());
            break;
        case Command::ViewList:
            document->setListStyle(kListStyle);
            break;
        case Command::ViewSmallIcons:
            document->setListStyle(kSmallIconStyle);
            break;
        case Command::ViewLargeIcons:
            document->setListStyle(kLargeIconStyle);
            break;
        case Command::ViewReport:
            document->setListStyle(kReportStyle);
            break;
        case Command::EntryEditStart:
            document->entry_editstart();
            break;
        case Command::EntryEditSelected:
            document->editEntries(true);
            break;
        case Command::EntryEditAll:
            document->editEntries(false);
            break;
        case Command::EntryCopy:
            if (copyMoveState_ == "init")
                copyMoveState_ = "copy";
            else
                document->copymnumnu_Click();
            break;
        case Command::EntryMove:
            if (copyMoveState_ == "init")
                copyMoveState_ = "move";
            else
                document->movemnumnu_Click();
            break;
        case Command::EntryDelete:
            document->remdelmnumnu_Click();
            break;
        case Command::DocumentFind:
            document->searchmnu_Click();
            break;
        default:
            break;
    }
    RealMenuSelectionizer();
}

// The column settings apply to the list of the active window, a document's or the
// search window's.
void frmMain::loadColumnSetting(const std::string& number) {
    QAction* entry = menuEntry(QString::fromStdString("chset" + number));
    if (!entry)
        return;
    const std::string name = FromQString(entry->data().toString());
    if (frmDocument* document = activeDocument())
        document->loadColumnSetting(name);
    else if (searcher* window = activeSearcher())
        window->loadColumnSetting(name);
}

void frmMain::saveColumnSetting() {
    frmDocument* document = activeDocument();
    searcher* window = activeSearcher();
    if (!document && !window)
        return;
    const std::string name = AskColumnSettingName(common_);
    if (document)
        document->saveColumnSetting(name);
    else
        window->saveColumnSetting(name);
    CheadRefresh();
}

searcher* frmMain::activeSearcher() const {
    QMdiSubWindow* window = mdi_->currentSubWindow();
    return window ? qobject_cast<searcher*>(window->widget()) : nullptr;
}

void frmMain::showSearcher(const std::string& caption) {
    if (!searcher_) {
        searcher_ = new searcher(common_, lifecycle_->table());
        searcher_->onActivated = [this] { disableDocumentMenus(); };
        searcher_->onSummary = [this](const std::string& text) { setSummary(ToQString(text)); };
        searcher_->coreCalls = [this](const std::string& name) { ZVXCoreCalls(name); };
        searcher_->onExport = [this] { showExport(); };
        searcher_->onListPopup = [this](const QPoint& at) {
            if (auto* popup = findChild<QMenu*>("viewrootmnu0"))
                popup->popup(at);
        };
        QMdiSubWindow* window = mdi_->addSubWindow(searcher_);
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->setWindowIcon(ThemeIcon("edit-find"));
    }
    searcher_->docucache();
    searcher_->setSource(caption);
    auto* window = qobject_cast<QMdiSubWindow*>(searcher_->parentWidget());
    window->show();
    mdi_->setActiveSubWindow(window);
}

// Activation of a child window: the menus follow it, and the search window prepares
// its search anew, so that it sees the documents as they are now.
void frmMain::subWindowActivated(QMdiSubWindow* window) {
    updateDocumentState();
    if (!window || window == lastActivated_)
        return;
    lastActivated_ = window;
    if (dynamic_cast<DocumentView*>(window->widget())) {
        lastDocument_ = window;
        common_.PLUGSTART("ZVXDOCUMENTFOCUS");
    }
    if (searcher* activated = qobject_cast<searcher*>(window->widget()))
        activated->Form_Activate();
}

void frmMain::AskQuit() {
    MsgAnswer answer = common_.screen().message("Closing ZVX...",
                                                "Are you sure that you want to quit ZVX already?",
                                                MsgButtons::YesNo, MsgIcon::Question);
    if (answer == MsgAnswer::Yes)
        close();
}

void frmMain::openRecent(const std::string& number) {
    QAction* entry = menuEntry(QString::fromStdString("recentfile" + number));
    if (!entry)
        return;
    common_.pendingDocument = FromQString(entry->data().toString());
    lifecycle_->LoadDoc();
}

void frmMain::showAbout() {
    frmAbout about(desktop_, this);
    about.exec();
}

void frmMain::setSplash(frmSplash* splash) {
    splash_ = splash;
    if (!splash_)
        return;
    // Owned by the main window: it goes with it and stays in front of it only.
    splash_->setParent(this, kSplashFlags);
    connect(splash_, &QObject::destroyed, this, [this] { splash_ = nullptr; });
}

void frmMain::nosplash() {
    if (splash_ && splash_->isVisible())
        splash_->close();
}

DocumentView* frmMain::createView(const std::string& caption) {
    auto* document = new frmDocument(common_);
    document->setCaption(caption);
    QMdiSubWindow* previous = mdi_->currentSubWindow();
    QMdiSubWindow* window = mdi_->addSubWindow(document);
    window->setAttribute(Qt::WA_DeleteOnClose);
    // New windows open cascaded below the current one, at two thirds of the frame.
    window->resize(std::max(480, mdi_->width() * 2 / 3), std::max(320, mdi_->height() * 2 / 3));
    if (previous)
        window->move(previous->pos() + QPoint(24, 24));
    window->setWindowIcon(ThemeIcon("document-open"));
    document->workingCopy = [this, document] {
        Document* open = lifecycle_->find(document);
        return open ? open->cfn : std::filesystem::path();
    };
    document->onSelectionChanged = [this] { updateDocumentState(); };
    document->onSummary = [this](const std::string& text) { setSummary(ToQString(text)); };
    document->coreCalls = [this](const std::string& name) { ZVXCoreCalls(name); };
    document->onFolderPopup = [this](const QPoint& at) { folderMenu_->popup(at); };
    document->onEntryPopup = [this](const QPoint& at) { entryMenu_->popup(at); };
    document->onSearch = [this](const std::string& caption) { showSearcher(caption); };
    document->menuEnabled = [this](const std::string& key) {
        QAction* entry = menuEntry(QString::fromStdString(key));
        return entry && entry->isEnabled();
    };
    document->onClose = [this, document] {
        if (Document* open = lifecycle_->find(document))
            RunGuarded(common_, [this, open] { lifecycle_->Close(*open); });
        // The window goes after this; the state follows the next active one.
        QTimer::singleShot(0, this, [this] { updateDocumentState(); });
    };
    window->show();
    mdi_->setActiveSubWindow(window);
    return document;
}

void frmMain::closeView(DocumentView* view) {
    for (QMdiSubWindow* window : mdi_->subWindowList()) {
        if (dynamic_cast<DocumentView*>(window->widget()) == view) {
            window->close();
            return;
        }
    }
}

DocumentView* frmMain::activeView() const {
    QMdiSubWindow* window = mdi_->currentSubWindow();
    return window ? dynamic_cast<DocumentView*>(window->widget()) : nullptr;
}

DocumentView* frmMain::lastActiveView() const {
    if (DocumentView* view = activeView())
        return view;
    return lastDocument_ ? dynamic_cast<DocumentView*>(lastDocument_->widget()) : nullptr;
}

void frmMain::closeEvent(QCloseEvent* event) {
    event->accept();
    if (unloaded_)
        return;
    unloaded_ = true;
    RunGuarded(common_, [this] { common_.PLUGSTART("ZVXQUIT"); });
    status("Closing ZVX...");
    RunGuarded(common_, [this] { StoreWindowSettings(common_, currentWindowSettings()); });
    unloadOtherWindows();
    cleanup window(common_, this);
    window.unloadNewsClient = [this] { news_->close(); };
    window.exec();
    if (onUnloaded)
        onUnloaded();
}

// Every other window goes before the clean-up: the welcome window writes its keys as it
// goes, a dialog in front ends its command, and each document runs its close sequence.
void frmMain::unloadOtherWindows() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window != this && window->isVisible())
            window->close();
    }
    for (QMdiSubWindow* window : mdi_->subWindowList())
        window->close();
}

}  // namespace zvx
