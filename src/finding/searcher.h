#pragma once
// The search window "Search ZVX": one for the application, a child window of the main
// window's frame beside the documents. It finds the entries of one open document by one
// field test, shows them in its result list and jumps to them in their document. The
// searches themselves work on files (search_preparation.h, search_run.h); the window
// reads its controls and shows what they give.

#include <QWidget>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "document/list_sorting.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPoint;
class QPushButton;
class QRadioButton;
class QTimer;
class QTreeView;

namespace zvx {

class Common;
class DocumentTable;
class SearchResultModel;
class frmDocument;
enum class SearchSourceOption;

class searcher : public QWidget {
    Q_OBJECT
  public:
    // `documents` is the document table, whose used slots Combo3 lists.
    searcher(Common& common, const DocumentTable& documents, QWidget* parent = nullptr);
    ~searcher() override;

    // Form_Activate, also run when Combo3 is used: the main window's document menus go
    // off (installed as onActivated), then docucache. Ignored while an action runs, so
    // that a question box closing in the middle of a search prepares nothing.
    void Form_Activate();
    // Refills Combo3 and prepares the search files of the document it shows.
    void docucache();
    // Combo3's text: the caption of the document to search.
    void setSource(const std::string& caption);

    void Command1_Click();   // "New Search-Result"
    void FlatBttn2_Click();  // "Remove from result"
    void FlatBttn1_Click();  // "Clear"
    void Command4_Click();   // "Export..."
    void FlatBttn4_Click();  // "Jump to ZVX-entry"
    void Option2_Click();
    void Option3_Click();
    // listclickinfo: the selection summary, and FlatBttn4's tag.
    void listclickinfo();

    // The column settings of the result list (chset, document_view_savecols).
    void loadColumnSetting(const std::string& name);
    void saveColumnSetting(const std::string& name);

    // Installed by the main window: its document menus off and the selection state
    // cleared; the selection summary; the named commands; its pop-up viewrootmnu0.
    std::function<void()> onActivated;
    std::function<void(const std::string&)> onSummary;
    std::function<void(const std::string&)> coreCalls;
    std::function<void(const QPoint&)> onListPopup;
    // Shows the export dialog over PLUGINS/export.tmp ("Export..." has filled it).
    std::function<void()> onExport;
    // Ends the process after a search overflowed its tables, with the overflow's text.
    // By default the error box tells it and the process ends with exit status 1.
    std::function<void(const std::string&)> endProcess;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLayout* buildSentence();
    QWidget* buildSource();
    QWidget* buildResults();
    void run(const std::function<void()>& action);
    void prepare();
    void searchRun(bool removal);
    void resolveFolders(const std::filesystem::path& source);
    void showCount();
    void showJumpRow();
    void sortBy(int column);
    void splitSource();
    std::vector<frmDocument*> openDocuments() const;
    SearchSourceOption sourceOption() const;

    Common& common_;
    const DocumentTable& documents_;
    QComboBox* Combo1_;
    QComboBox* Combo2_;
    QLineEdit* Text1_;
    QComboBox* Combo4_;
    QCheckBox* Check3_;
    QPushButton* Command1_;
    QComboBox* Combo3_;
    QRadioButton* Option1_;
    QRadioButton* Option2_;
    QRadioButton* Option3_;
    QLabel* Label1_;
    QPushButton* FlatBttn4_;
    QTreeView* ListView1_;
    SearchResultModel* model_;
    QTimer* Timer1_;
    ListSort sort_;
    // ListView1's tag: the caption of the document the last new search ran on.
    std::string listTag_;
    // 1 after a new search, 2 after a removal.
    int searchKind_ = 0;
    bool busy_ = false;
};

}  // namespace zvx
