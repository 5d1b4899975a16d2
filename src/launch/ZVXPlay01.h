#pragma once
// The executer's window: steps through the selected rows of the active window's list one
// at a time, opening each entry's file, with its progress and Cancel.

#include <QDialog>
#include <QPointer>
#include <memory>

#include "launch/executer_run.h"

class QAbstractItemView;
class QLabel;
class QProgressBar;
class QTimer;

namespace zvx {

class Common;
class Desktop;

class ZVXPlay01 : public QDialog, private ExecuterList, private MissingFileDialog {
    Q_OBJECT
  public:
    // `list` is ListView1 of the active window, or null; it stays disabled while the
    // window is up. Files open through the desktop's default handler.
    ZVXPlay01(Common& common, QAbstractItemView* list, Desktop& desktop, QWidget* parent = nullptr);
    ~ZVXPlay01() override;

    // Every way out (the run's end, Abort All, Cancel, Esc) enables the list again.
    void done(int result) override;

  private:
    void yo();
    void fileme();
    void showState();

    // ExecuterList over the list's model and selection.
    long rowCount() const override;
    bool isSelected(long row) const override;
    std::string tag(long row) const override;
    // MissingFileDialog: ZVXPlay02 over the mounted drives.
    MissingChoice showing(const MissingFile& file, const AttemptDevice& attempt) override;

    QPointer<QAbstractItemView> list_;
    std::unique_ptr<FileOpener> opener_;
    std::unique_ptr<ExecuterRun> run_;
    QLabel* Label1_;
    QLabel* Label2_;
    QLabel* Label3_;
    QProgressBar* ProgressBar1_;
    QTimer* Timer1_;
    QTimer* Timer2_;
};

}  // namespace zvx
