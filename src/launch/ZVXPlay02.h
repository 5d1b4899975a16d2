#pragma once
// The dialog for a file that is not where the catalogue says: the medium's ID and
// description, the drive selector Drive1 and the four buttons.

#include <QDialog>
#include <vector>

#include "launch/missing_file.h"
#include "platform/drives.h"

class QComboBox;
class QLabel;

namespace zvx {

class ZVXPlay02 : public QDialog, public MissingFileDialog {
    Q_OBJECT
  public:
    // Drive1 offers the mount paths of `drives`; another folder may be typed in.
    explicit ZVXPlay02(const std::vector<Drive>& drives, QWidget* parent = nullptr);

    // Closing the dialog by its close box or Esc skips the file.
    MissingChoice showing(const MissingFile& file, const AttemptDevice& attempt) override;

  private:
    void FlatBttn1_Click();
    void closeWith(MissingChoice choice);

    QLabel* Label2_;
    QLabel* Label4_;
    QLabel* Label5_;
    QComboBox* Drive1_;
    AttemptDevice attempt_;
    MissingChoice choice_ = MissingChoice::SkipFile;
};

}  // namespace zvx
