#pragma once
// A document window: the folder tree List2 on the left, the folder line and the entry
// list ListView1 on the right. Its life (working copy, change flag, saving) is the
// document lifecycle's; the window shows the working copy and runs the commands on it.

#include <QWidget>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/change_buffers.h"
#include "document/document_view.h"
#include "document/editor_navigation.h"
#include "document/folder_tree.h"
#include "document/list_sorting.h"
#include "document/selection_facts.h"
#include "document/show_entries.h"
#include "exchange/export_prep.h"

class QLabel;
class QListView;
class QPoint;
class QSplitter;
class QStackedWidget;
class QTabWidget;
class QTimer;
class QTreeView;
class QTreeWidget;
class QTreeWidgetItem;

namespace zvx {

class Common;
class EntryEditor;
class EntryListModel;
class SelectedRows;
enum class EntryCopyMode;

class frmDocument : public QWidget, public DocumentView {
    Q_OBJECT
  public:
    explicit frmDocument(Common& common, QWidget* parent = nullptr);
    ~frmDocument() override;

    std::string caption() const override;
    void setCaption(const std::string& text) override;
    // Rebuilds the tree from the working copy and lists the selected folder.
    void refresh_Click() override;
    // The final apply while the editor's tab is on show; the list and the editor then
    // show the lines as they now stand in the working copy.
    void Editor_Final_Apply_Changes() override;

    // The working copy, from the lifecycle; installed by the main window.
    std::function<std::filesystem::path()> workingCopy;
    // Runs the close sequence; installed by the main window. Closing always goes on.
    std::function<void()> onClose;
    // The main window's menu-state update, summary panel and command dispatch.
    std::function<void()> onSelectionChanged;
    std::function<void(const std::string&)> onSummary;
    std::function<void(const std::string&)> coreCalls;
    // Shows the main window's folder pop-up menu at a screen position.
    std::function<void(const QPoint&)> onFolderPopup;
    // Whether the main window's menu item of a key is there and enabled.
    std::function<bool(const std::string&)> menuEnabled;
    // Shows the main window's entry pop-up menu at a screen position.
    std::function<void(const QPoint&)> onEntryPopup;

    // The tree (listak) and the list (ShowEntries).
    void listak();
    // The tree emptied and rebuilt, so no selection is remembered, then the list.
    void hardRefresh();
    void ShowEntries();
    SelectionFacts selectionFacts() const;

    // Folder commands.
    void crefolder_Click();
    void Folderprefs_Click();
    void delFolder_Click();
    void movfolder_Click();
    void expandmnu_Click();
    void increasemnu_Click();
    void expselmnu_Click();
    void incselmnu_Click();

    // The entry editor, tab 2 of Tabthing: the tab's click (leaving the editor applies
    // its changes, entering it starts on the one selected row), entry_editstart, and
    // editmnu0 and editmnu1 (the editor on the selected rows only, or on all).
    void Tabthing_Click();
    void entry_editstart();
    void editEntries(bool selectedOnly);
    EntryEditor* editor() const { return editor_; }

    // Entry commands: copy or move the selected entries to a folder chosen in the
    // moving dialog, and delete them after the question.
    void copymnumnu_Click();
    void movemnumnu_Click();
    void remdelmnumnu_Click();

    // The search window on this document (document_find): searchSplitMode cleared, the
    // search files prepared, then the window shown on this document's caption through
    // onSearch, which the main window installs.
    void searchmnu_Click();
    std::function<void(const std::string&)> onSearch;
    // Prepares the search files from the working copy, the split mode and the selected
    // folder. Pending edits of the editor are written first, so the search sees them.
    void SearchInit();
    // exportall_Click, exportsel_Click, exportsub_Click without their dialog: pending
    // edits written, then export.tmp made from the whole, the selected folder or its
    // sub-tree.
    void prepareExport(ExportSource source);
    // A jump from the search window: the first folder whose FullPath and "\" are
    // `folderText` is selected and listed, the rows whose tag is `tag` are selected and
    // the first of them shown, and an editor on show goes to the selected entries.
    // False, with nothing done, when no folder fits.
    bool showSearchHit(std::string_view folderText, std::string_view tag);

    // View: sub-view, list style (0 large icons, 1 small icons, 2 list, 3 report) and
    // column settings.
    bool SubViewIng() const { return subViewing_; }
    void setSubViewing(bool on);
    int listStyle() const { return listStyle_; }
    void setListStyle(int style);
    void loadColumnSetting(const std::string& name);
    void saveColumnSetting(const std::string& name);

    int selectedFolder() const;
    // The selected folder's node, or none.
    const FolderNode* selectedNode() const;
    bool hasFolders() const { return !tree_.empty(); }
    EntryListModel* entries() const { return model_; }
    // The working copy, cfn.
    std::filesystem::path cfn() const;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void buildList();
    void showTree(int select, bool expand);
    void folderSelected();
    void List2_Collapse(QTreeWidgetItem* item);
    void showCaption();
    void applyFolderChange(bool changed);
    void selectPath(const std::string& path);
    void sortBy(int column);
    void applySort();
    void summarize();
    void listEntries();
    void buildEditor();
    void EditorInit();
    void EditorRefresh();
    void Editor_Temp_ApplyChanges();
    bool applyEditorChanges(std::vector<std::string>* selectedLines = nullptr);
    void selectLines(const std::vector<std::string>& lines);
    bool editorOnShow() const;
    std::optional<SearchFolder> selectedSearchFolder() const;
    std::vector<int> selectedRowNumbers() const;
    std::vector<std::string_view> editedLines() const;
    void forgetChanges();
    void applyLockedSelection();
    void copyOrMove(EntryCopyMode mode);
    SelectedRows selectedRows() const;

    Common& common_;
    QSplitter* splitter_;
    QTreeWidget* List2_;
    QLabel* Label1_;
    QTabWidget* Tabthing_;
    QStackedWidget* views_;
    QTreeView* ListView1_;
    QListView* iconView_;
    EntryListModel* model_;
    QTimer* Timer1_;
    FolderTree tree_;
    std::vector<QTreeWidgetItem*> items_;
    ViewBuffer buffer_;
    ListSort sort_;
    bool sorted_ = false;
    bool subViewing_ = false;
    int listStyle_ = 3;
    bool filling_ = false;
    bool TreeHidden_ = false;
    EntryEditor* editor_;
    EditorMemory editorMemory_;
    bool EditorChanged_ = false;
    // buffer_old and buffer_new: the edits waiting for the final apply.
    ChangeBuffers buffers_;
};

}  // namespace zvx
