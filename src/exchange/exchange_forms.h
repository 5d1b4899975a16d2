#pragma once
// The exchange dialogs: "ZVX-Export" over PLUGINS/export.tmp and "ZVX-Import" into the
// active document. Each lists the built-in filter and the declared ones with their
// details, and stays open after a run. (The object names are "export" and "import";
// the class names differ only because those words are taken by the language.)

#include <QDialog>
#include <vector>

#include "exchange/exchange_runs.h"
#include "extensions/filter_scan.h"

class QLabel;
class QListWidget;
class QRadioButton;

namespace zvx {

class Common;
class frmDocument;

// The filter list and the details pane both dialogs share.
class FilterPanel : public QWidget {
    Q_OBJECT
  public:
    FilterPanel(Common& common, FilterKind kind, QWidget* parent = nullptr);
    // The selected row's declaration file; empty when no row is selected.
    std::string selectedFile() const;

  private:
    void showDetails();

    Common& common_;
    FilterKind kind_;
    std::vector<FilterRow> rows_;  // List2: the declaration file of each row
    QListWidget* List1_;
    QLabel* labels_[4];
};

class exportForm : public QDialog {
    Q_OBJECT
  public:
    // The load: expback.tmp becomes a fresh copy of export.tmp, and the filters are read.
    exportForm(Common& common, FilterRunner runFilter, QWidget* parent = nullptr);
    void Command1_Click();

  private:
    Common& common_;
    FilterRunner runFilter_;
    FilterPanel* filters_;
    QRadioButton* Option1_;
    QRadioButton* Option2_;
};

class importForm : public QDialog {
    Q_OBJECT
  public:
    importForm(Common& common, frmDocument& document, FilterRunner runFilter,
               QWidget* parent = nullptr);
    void Command1_Click();

  private:
    Common& common_;
    frmDocument& document_;
    FilterRunner runFilter_;
    FilterPanel* filters_;
    QRadioButton* Option1_;
};

}  // namespace zvx
