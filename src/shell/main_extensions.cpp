// The main window's side of the extensions: the facts it hands over, the wait window,
// the add-ons' event calls, menu items and shortcuts.

#include <QAbstractItemView>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QToolBar>
#include <map>
#include <stdexcept>

#include "common/common.h"
#include "document/entry_list_model.h"
#include "document/frmDocument.h"
#include "exchange/exchange_forms.h"
#include "extensions/addon_menus.h"
#include "extensions/plugrun.h"
#include "finding/searcher.h"
#include "platform/file_io.h"
#include "shell/frmMain.h"
#include "store/entry_offset.h"
#include "ui/command_guard.h"
#include "ui/text_codec.h"

namespace zvx {

namespace {

// The tags of the selected rows of a window's list, in list order.
std::vector<std::string> SelectedTags(const QWidget& form) {
    std::vector<std::string> tags;
    const auto* list = form.findChild<QAbstractItemView*>("ListView1");
    if (!list || !list->model() || !list->selectionModel())
        return tags;
    const QAbstractItemModel& model = *list->model();
    for (int row = 0; row < model.rowCount(); ++row) {
        if (list->selectionModel()->isRowSelected(row))
            tags.push_back(
                model.index(row, 0).data(EntryListModel::TagRole).toByteArray().toStdString());
    }
    return tags;
}

}  // namespace

HandOverFacts frmMain::handOverFacts() const {
    HandOverFacts facts;
    QMdiSubWindow* child = mdi_->currentSubWindow();
    QWidget* form = child ? child->widget() : nullptr;
    if (!form)
        return facts;
    facts.searcher = qobject_cast<searcher*>(form) != nullptr;
    facts.selectedTags = SelectedTags(*form);
    if (auto* document = qobject_cast<frmDocument*>(form)) {
        facts.workingCopy = document->cfn().string();
        facts.caption = document->caption();
        if (const FolderNode* node = document->selectedNode())
            facts.folderTag = node->tag;
        facts.subView = document->SubViewIng();
    }
    return facts;
}

void frmMain::repaintActive() {
    if (QMdiSubWindow* child = mdi_->currentSubWindow())
        child->repaint();
}

void frmMain::showWait(const std::string& exeName, const WaitMode& wait) {
    plugrun window(common_, *extensions_, extensionWait_, this);
    window.showing(exeName, wait);
}

void frmMain::eventCall(AddOnEventCall call) {
    frmDocument* document = activeDocument();
    if (!document)
        throw std::runtime_error("No active document");
    switch (call) {
        case AddOnEventCall::HardRefresh:
            document->hardRefresh();
            break;
        case AddOnEventCall::Refresh:
            document->refresh_Click();
            break;
        case AddOnEventCall::ListRefresh:
            document->ShowEntries();
            break;
        case AddOnEventCall::FolderRefresh:
            document->listak();
            break;
        case AddOnEventCall::TocReset:
            UpdateEntryOffset(common_, document->cfn());
            break;
    }
}

QMenu* frmMain::addOnParent(const std::string& key) {
    const std::map<std::string, QMenu*> parents{
        {"foldermnuTOP", entryMenu_},
        {"pathmnuTOP", folderMenu_},
        {"foldermnu1", selectionAddOns_},
        {"mnuFile", fileMenu_},
        {"mnuView", findChild<QMenu*>("mnuviewTOP")},
        {"mnuHelp", findChild<QMenu*>("mnuhelpTOP")},
        {"addonmnuTOP", addOnMenu_},
    };
    const auto found = parents.find(key);
    return found == parents.end() ? nullptr : found->second;
}

void frmMain::AddOnsShow() {
    TouchFile(common_.workFile(kAddOnListFile));
    for (const AddOnMenuItem& item : AddOnMenuItems(ReadAddOnList(common_))) {
        QMenu* parent = addOnParent(item.parentKey);
        if (item.firstOfSection)
            parent->addSeparator()->setObjectName(QString::fromStdString(item.separatorKey));
        QAction* entry = parent->addAction(ToQString(item.caption));
        entry->setObjectName(QString::fromStdString(item.key));
        entry->setData(QByteArray::fromStdString(item.callString));
        const std::string key = item.key;
        connect(entry, &QAction::triggered, this, [this, key] { ZVXCoreCalls(key); });
        parent->menuAction()->setVisible(true);
    }
}

void frmMain::MenuMakerYo() {
    const ScanTextSink show = [this](const std::string& text) { status(text); };
    int index = 0;
    for (const AddOnShortcut& shortcut : AddOnShortcuts(common_, show)) {
        QAction* element = noplan_->addAction(ToQString(shortcut.caption));
        element->setObjectName("noplan" + QString::number(++index));
        element->setVisible(shortcut.visible);
        const std::string call = shortcut.callString;
        connect(element, &QAction::triggered, this,
                [this, call] { RunGuarded(common_, [&] { extensions_->AddOnStart(call); }); });
        if (shortcut.visible)
            noplan_->show();
    }
    status("");
}

FilterRunner frmMain::filterRunner() {
    return [this](const std::string& eventName, const std::string& call) {
        extensions_->HandOver(eventName);
        extensions_->AddOnStart(call);
    };
}

void frmMain::exportFrom(frmDocument& document, ExportSource source) {
    document.prepareExport(source);
    showExport();
}

void frmMain::showExport() {
    exportForm form(common_, filterRunner(), this);
    form.exec();
}

void frmMain::showImport(frmDocument& document) {
    importForm form(common_, document, filterRunner(), this);
    form.exec();
}

void frmMain::runAddOnItem(const std::string& key) {
    const QAction* item = menuEntry(QString::fromStdString(key));
    if (!item)
        return;
    extensions_->AddOnStart(item->data().toByteArray().toStdString());
    if (QWidget* form = activeForm()) {
        form->setEnabled(false);
        form->setEnabled(true);
        form->setFocus();
    }
}

}  // namespace zvx
