#pragma once
// The tree-adding wizard, "ZVX-Tree-Adding-Wizard": a device or a directory tree
// catalogued in one run into the active document.

#include <QDialog>
#include <string>
#include <vector>

#include "adding/cdwizard_settings.h"
#include "platform/drives.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;
class QTabWidget;

namespace zvx {

class Common;
class frmDocument;

class cdwizard : public QDialog {
    Q_OBJECT
  public:
    cdwizard(Common& common, frmDocument& document, std::vector<Drive> drives,
             QWidget* parent = nullptr);

    // command2_Click: checks the parental name, runs the walk and closes.
    void command2_Click();
    // The directory Dir1 shows.
    const std::string& dirPath() const { return dirPath_; }
    // Points Dir1 at a directory (as a double click on one of its rows does).
    void setDirPath(const std::string& path);

  protected:
    void done(int result) override;

  private:
    QWidget* buildSourcePage();
    QWidget* buildOptionsPage();
    void loadSettings();
    CdwizardSettings currentSettings() const;
    void Drive1_Change();
    void ProposeRootName();
    void Text1_Validate();
    void enableControls();
    std::string rootPath() const;

    Common& common_;
    frmDocument& document_;
    std::vector<Drive> drives_;
    std::string dirPath_;
    int driveRow_ = -1;
    QTabWidget* TabStrip1_;
    QComboBox* Drive1_;
    QLabel* dirLabel_;
    QListWidget* Dir1_;
    QCheckBox* Check1_;
    QRadioButton* Option1_;
    QRadioButton* Option2_;
    QCheckBox* Check6_;
    QLabel* Label2_;
    QLineEdit* Text1_;
    QCheckBox* Check5_;
    QCheckBox* Check3_;
    QCheckBox* Check2_;
    QCheckBox* Check7_;
    QLineEdit* Text2_;
    QRadioButton* Option3_;
    QLineEdit* Text3_;
    QRadioButton* Option4_;
    QComboBox* ImageCombo1_;
    QComboBox* ImageCombo2_;
    QCheckBox* Check4_;
};

}  // namespace zvx
