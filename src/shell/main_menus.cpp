// The main window's menus, the recent-file entries and the bar toggles.

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

#include "common/common.h"
#include "document/column_layout.h"
#include "document/frmDocument.h"
#include "document/list_appearance.h"
#include "shell/frmMain.h"
#include "shell/recent_list.h"
#include "ui/icons.h"
#include "ui/news_panel.h"
#include "ui/text_codec.h"

namespace zvx {

QAction* frmMain::addEntry(QMenu* menu, const char* key, const QString& caption,
                           const QString& icon, const QKeySequence& keys) {
    QAction* action = menu->addAction(icon.isEmpty() ? QIcon() : ThemeIcon(icon), caption);
    action->setObjectName(key);
    action->setShortcut(keys);
    const std::string command = QString(key).toLower().toStdString();
    connect(action, &QAction::triggered, this, [this, command] { ZVXCoreCalls(command); });
    return action;
}

void frmMain::buildMenus() {
    fileMenu_ = menuBar()->addMenu("&File");
    fileMenu_->setObjectName("mnufileTOP");
    addEntry(fileMenu_, "mnufile0", "&New", "document-new", QKeySequence::New);
    addEntry(fileMenu_, "mnufile1", "&Open...", "document-open", QKeySequence::Open);
    addEntry(fileMenu_, "mnufile2", "&Save", "document-save", QKeySequence::Save);
    addEntry(fileMenu_, "mnufile3", "Save &As...", "document-save-as", QKeySequence::SaveAs);
    addEntry(fileMenu_, "mnufile4", "&Close", "document-close", QKeySequence::Close);
    addEntry(fileMenu_, "mnufile5", "E&xport...", "document-export");
    recentTOP_ = fileMenu_->addSeparator();
    recentTOP_->setObjectName("recentTOP");
    fileMenu_->addSeparator();
    addEntry(fileMenu_, "mnufile6", "&Quit", "application-exit", QKeySequence::Quit);

    QMenu* view = menuBar()->addMenu("&View");
    view->setObjectName("mnuviewTOP");
    QMenu* bars = view->addMenu("&Toolbars");
    bars->setObjectName("mbarTOP");
    addEntry(bars, "mbarstandard", "&Standard")->setCheckable(true);
    addEntry(bars, "mbarprogress", "&Progress")->setCheckable(true);
    addEntry(bars, "newsclientbar", "&News")->setCheckable(true);
    QAction* statusBarEntry = view->addAction("Status &Bar");
    statusBarEntry->setObjectName("mnuViewStatusBar");
    statusBarEntry->setCheckable(true);
    connect(statusBarEntry, &QAction::triggered, this,
            [this](bool shown) { statusBar()->setVisible(shown); });

    view->addSeparator();
    addEntry(view, "viewmnu0", "Su&b-View", "view-list-tree")->setCheckable(true);
    addEntry(view, "viewmnu4", "&List", "view-list-text")->setCheckable(true);
    addEntry(view, "viewmnu2", "S&mall Icons", "view-list-icons")->setCheckable(true);
    addEntry(view, "viewmnu3", "Lar&ge Icons", "view-grid")->setCheckable(true);
    addEntry(view, "viewmnu5", "&Report", "view-list-details")->setCheckable(true);
    view->addSeparator();
    columnMenu_ = view->addMenu("&Columns");
    columnMenu_->setObjectName("chsetTOP");
    addEntry(view, "reportstylemnu0", "&Save Column Setting...");

    QMenu* entries = menuBar()->addMenu("&Entry");
    entryMenu_ = entries;
    entries->menuAction()->setObjectName("foldermnuTOP");
    addEntry(entries, "foldermnu0", "&Find...", "edit-find", QKeySequence::Find);
    entries->addSeparator();
    QMenu* add = entries->addMenu("&Add");
    add->setObjectName("addmnu");
    addEntry(add, "addmnu0", "&Wizard...", "drive-harddisk");
    addEntry(add, "addmnu2", "&Manually...", "list-add");
    QMenu* edit = entries->addMenu("&Edit");
    edit->setObjectName("editmnu");
    addEntry(edit, "editmnu0", "&Selected Entries...", "document-edit");
    addEntry(edit, "editmnu1", "&All Entries...");
    QMenu* copyMove = entries->addMenu("&Copy / Move");
    copyMove->setObjectName("copymovemnu");
    addEntry(copyMove, "copymovemnu0", "&Copy To...", "edit-copy");
    addEntry(copyMove, "copymovemnu1", "&Move To...", "edit-cut");
    addEntry(entries, "foldermnu7", "&Delete", "edit-delete");
    entries->addSeparator();
    addEntry(entries, "foldermnu10", "E&xecute", "system-run");
    selectionAddOns_ = entries->addMenu("Se&lection");
    selectionAddOns_->setObjectName("foldermnu1");
    selectionAddOns_->menuAction()->setVisible(false);

    QMenu* folders = menuBar()->addMenu("F&older");
    folderMenu_ = folders;
    folders->menuAction()->setObjectName("pathmnuTOP");
    addEntry(folders, "pathmnu0", "&New Folder...", "folder-new");
    addEntry(folders, "pathmnu1", "&Properties...", "document-properties");
    addEntry(folders, "pathmnu3", "&Move...");
    addEntry(folders, "pathmnu4", "&Delete", "edit-delete");
    folders->addSeparator();
    addEntry(folders, "pathmnu6", "&Import...", "document-import");
    QMenu* exports = folders->addMenu("E&xport");
    exports->setObjectName("expmnu");
    addEntry(exports, "expmnu0", "Selected &Folder...");
    addEntry(exports, "expmnu1", "Selected Folder with &Sub-Folders...");
    folders->addSeparator();
    addEntry(folders, "expandmnu0", "&Expand Selected");
    addEntry(folders, "expandmnu1", "&Collapse Selected");
    addEntry(folders, "expandmnu2", "Expand &All");
    addEntry(folders, "expandmnu3", "Collapse A&ll");

    // The search window's results; on only while that window is in front, when the
    // document menus are off.
    QMenu* results = menuBar()->addMenu("&Results");
    results->menuAction()->setObjectName("exemnuTOP");
    addEntry(results, "exemnu01", "&Execute", "system-run");

    addOnMenu_ = menuBar()->addMenu("A&dd-Ons");
    addOnMenu_->setObjectName("addonmnuTOP");
    addOnMenu_->menuAction()->setVisible(false);

    QMenu* windows = menuBar()->addMenu("&Window");
    windows->setObjectName("mnuwinTOP");
    addEntry(windows, "mnuwin0", "&Cascade", "window-cascade");
    addEntry(windows, "mnuwin1", "Tile &Horizontally");
    addEntry(windows, "mnuwin2", "Tile &Vertically");
    addEntry(windows, "mnuwin3", "&Arrange Icons");

    QMenu* help = menuBar()->addMenu("&Help");
    help->setObjectName("mnuhelpTOP");
    addEntry(help, "mnuhelpabout", "&About ZVX...", "help-about");
}

QAction* frmMain::menuEntry(const QString& key) const {
    return findChild<QAction*>(key);
}

void frmMain::RecentRefresh() {
    for (QAction* entry : fileMenu_->actions()) {
        if (entry->objectName().startsWith("recentfile")) {
            fileMenu_->removeAction(entry);
            entry->deleteLater();
        }
    }
    QAction* before = nullptr;
    const QList<QAction*> entries = fileMenu_->actions();
    int top = entries.indexOf(recentTOP_);
    if (top + 1 < entries.size())
        before = entries[top + 1];
    const auto& paths = common_.Recentlist;
    for (size_t i = 0; i < paths.size(); ++i) {
        auto* entry =
            new QAction(ToQString(RecentCaption(static_cast<int>(i) + 1, paths[i])), this);
        const std::string key = "recentfile" + std::to_string(i);
        entry->setObjectName(QString::fromStdString(key));
        entry->setData(ToQString(paths[i]));
        connect(entry, &QAction::triggered, this, [this, key] { ZVXCoreCalls(key); });
        fileMenu_->insertAction(before, entry);
    }
}

void frmMain::CheadRefresh() {
    for (QAction* entry : columnMenu_->actions())
        entry->deleteLater();
    columnMenu_->clear();
    const std::vector<std::string> names = ColumnSettingNames(common_);
    for (size_t i = 0; i < names.size(); ++i) {
        const std::string key = "chset" + std::to_string(i);
        QAction* entry = columnMenu_->addAction(ToQString(names[i]));
        entry->setObjectName(QString::fromStdString(key));
        entry->setData(ToQString(names[i]));
        connect(entry, &QAction::triggered, this, [this, key] { ZVXCoreCalls(key); });
    }
}

void frmMain::RealMenuSelectionizer() {
    frmDocument* document = activeDocument();
    const QWidget* form = activeForm();
    const bool searching = form && form->objectName() == "searcher";
    menuEntry("exemnu01")->setEnabled(searching);
    // The search window's list always shows the report style.
    const int style = document ? document->listStyle() : searching ? kReportStyle : -1;
    menuEntry("viewmnu0")->setChecked(document && document->SubViewIng());
    menuEntry("viewmnu4")->setChecked(style == kListStyle);
    menuEntry("viewmnu2")->setChecked(style == kSmallIconStyle);
    menuEntry("viewmnu3")->setChecked(style == kLargeIconStyle);
    menuEntry("viewmnu5")->setChecked(style == kReportStyle);
}

void frmMain::barmenustate() {
    const bool coolBar = CoolBarVisible(bars_);
    Toolbar1_->setVisible(coolBar && bars_[0]);
    ViewBar_->setVisible(coolBar && bars_[0]);
    ProgressBand_->setVisible(coolBar && bars_[3]);
    menuEntry("mbarstandard")->setChecked(bars_[0]);
    menuEntry("mbarprogress")->setChecked(bars_[3]);
}

void frmMain::toggleBar(int index) {
    bars_[index] = !bars_[index];
    barmenustate();
}

void frmMain::toggleNewsPanel() {
    news_->setVisible(news_->isHidden());
    menuEntry("newsclientbar")->setChecked(!news_->isHidden());
}

}  // namespace zvx
