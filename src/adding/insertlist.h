#pragma once
// The insert list, "ZVX-File-Adding": files collected from the file dialog or by
// dropping, then inserted into the selected folder of the active document in one run.

#include <QDialog>
#include <string>
#include <vector>

#include "adding/insert_rows.h"

class QCheckBox;
class QLabel;
class QPushButton;
class QTreeWidget;

namespace zvx {

class Common;
class frmDocument;

class insertlist : public QDialog {
    Q_OBJECT
  public:
    insertlist(Common& common, frmDocument& document, QWidget* parent = nullptr);

    // Loads the form: with an empty tree the document is asked for a folder first, and
    // without one the form closes at once. Then shows it modally.
    void start();
    // listmore: adds a row for a native path and shows the list anew.
    void listmore(const std::string& path);

    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void FlatBttn1_Click();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void dataact();
    void showRows();

    Common& common_;
    frmDocument& document_;
    std::vector<InsertRow> rows_;
    QTreeWidget* ListView1_;
    QCheckBox* Check1_;
    QLabel* Label1_;
};

}  // namespace zvx
