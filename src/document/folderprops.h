#pragma once
// The folder properties dialog: name, description and icon of a new or existing folder,
// and for a new one whether it goes below the selected folder or to the root.

#include <QDialog>
#include <optional>

#include "document/folder_dialog_rules.h"

class QComboBox;
class QLineEdit;
class QRadioButton;

namespace zvx {

class Common;

class folderprops : public QDialog {
    Q_OBJECT
  public:
    folderprops(Common& common, bool newFolder, const FolderPropsSetup& setup,
                QWidget* parent = nullptr);

    // Shows the dialog modally: the result, or none when cancelled.
    std::optional<FolderDialogResult> showing();

  private:
    void ok();
    void Text1_Change(const QString& text);

    Common& common_;
    bool newFolder_;
    QLineEdit* Text1_;
    QLineEdit* Text2_;
    QComboBox* ImageCombo1_;
    QRadioButton* Option1_;
    QRadioButton* Option2_;
    std::optional<FolderDialogResult> result_;
};

}  // namespace zvx
