// The main window's tool bars and the enabling of their items by the selection.

#include <QMenu>
#include <QProgressBar>
#include <QToolBar>
#include <QToolButton>

#include "document/frmDocument.h"
#include "shell/frmMain.h"
#include "shell/selection_update.h"
#include "ui/icons.h"

namespace zvx {

namespace {

// The theme icon of each button of the standard bar, by its label.
QString IconOfButton(std::string_view label) {
    static const std::pair<std::string_view, const char*> icons[] = {
        {"New", "document-new"},   {"Load", "document-open"},
        {"Save", "document-save"}, {"Options", "preferences-system"},
        {"Find", "edit-find"},     {"Folder", "folder"},
        {"Add", "list-add"},       {"Edit", "document-edit"},
        {"About", "help-about"}};
    for (const auto& [name, icon] : icons)
        if (name == label)
            return icon;
    return {};
}

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), text.size());
}

}  // namespace

void frmMain::buildToolBars() {
    Toolbar1_ = addToolBar("Standard");
    Toolbar1_->setObjectName("Toolbar1");
    Toolbar1_->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    for (const ToolButton& entry : MainToolBar()) {
        if (entry.separator) {
            Toolbar1_->addSeparator();
            continue;
        }
        auto* button = new QToolButton;
        button->setObjectName(Text(entry.tag));
        button->setProperty("tag", Text(entry.tag));
        button->setText(Text(entry.label));
        button->setToolTip(Text(entry.toolTip));
        button->setIcon(ThemeIcon(IconOfButton(entry.label)));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setAutoRaise(true);
        const std::string command = CommandOfTag(entry.tag);
        connect(button, &QToolButton::clicked, this, [this, command] { ZVXCoreCalls(command); });
        if (!entry.dropDown.empty()) {
            auto* menu = new QMenu(button);
            for (const ToolDropDownItem& item : entry.dropDown) {
                QAction* action = menu->addAction(Text(item.label));
                action->setProperty("tag", Text(item.tag));
                const std::string itemCommand = CommandOfTag(item.tag);
                connect(action, &QAction::triggered, this,
                        [this, itemCommand] { ZVXCoreCalls(itemCommand); });
            }
            button->setMenu(menu);
            button->setPopupMode(QToolButton::MenuButtonPopup);
        }
        Toolbar1_->addWidget(button);
    }
    // The view buttons: the view menu's own entries, so their checks are one.
    ViewBar_ = addToolBar("View");
    ViewBar_->setObjectName("Toolbar2");
    for (const char* key : {"viewmnu0", "viewmnu4", "viewmnu2", "viewmnu3", "viewmnu5"})
        ViewBar_->addAction(menuEntry(key));
    ProgressBand_ = addToolBar("Progress");
    ProgressBand_->setObjectName("ProgressBand");
    ProgressBar1_ = new QProgressBar;
    ProgressBar1_->setObjectName("ProgressBar1");
    ProgressBar1_->setTextVisible(false);
    ProgressBar1_->setMaximumWidth(240);
    ProgressBand_->addWidget(ProgressBar1_);
    // The add-ons' shortcuts; shown once one of them is.
    noplan_ = addToolBar("Add-Ons");
    noplan_->setObjectName("noplan");
    noplan_->hide();
}

void frmMain::RealSelectionizer(const SelectionState& state, bool keepFolderItems) {
    for (QToolButton* button : Toolbar1_->findChildren<QToolButton*>()) {
        const QString tag = button->property("tag").toString();
        if (tag.isEmpty())
            continue;
        button->setEnabled(
            ToolItemEnabled(tag.toStdString(), state, keepFolderItems, button->isEnabled()));
        if (!button->menu())
            continue;
        for (QAction* item : button->menu()->actions()) {
            item->setEnabled(ToolItemEnabled(item->property("tag").toString().toStdString(), state,
                                             keepFolderItems, item->isEnabled()));
        }
    }
}

void frmMain::disableDocumentMenus() {
    for (const char* key :
         {"foldermnuTOP", "pathmnuTOP", "mnufile2", "mnufile3", "mnufile4", "mnufile5"})
        if (QAction* entry = menuEntry(key))
            entry->setEnabled(false);
    RealSelectionizer(kNoDocumentState, false);
}

void frmMain::updateDocumentState() {
    RealMenuSelectionizer();
    frmDocument* document = activeDocument();
    if (!document) {
        disableDocumentMenus();
        return;
    }
    SelectionUpdate update = selecTionIzer(document->selectionFacts(), false, false);
    for (const MenuInstruction& instruction : update.menus)
        if (QAction* entry = menuEntry(
                QString::fromUtf8(instruction.menuKey.data(), instruction.menuKey.size())))
            entry->setEnabled(instruction.enabled);
    RealSelectionizer(update.state, false);
}

}  // namespace zvx
