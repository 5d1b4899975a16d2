#pragma once
// The target chooser of folder moves and entry copies: a tree of the document's
// folders, and for a folder move the choice between below a folder and the root.

#include <QDialog>

#include "document/folder_dialog_rules.h"

class QRadioButton;
class QTreeWidget;

namespace zvx {

class Common;

class moving : public QDialog {
    Q_OBJECT
  public:
    moving(Common& common, MovingMode mode, MovingSetup setup, QWidget* parent = nullptr);

    // Shows the dialog modally: MoveTarget, empty when cancelled.
    std::string showing();

  private:
    Common& common_;
    MovingMode mode_;
    MovingSetup setup_;
    QTreeWidget* List1_;
    QRadioButton* Option1_;
};

}  // namespace zvx
