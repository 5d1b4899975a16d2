#pragma once
// The "cleanup" window of the shutdown: removes the working copies and temporary files
// with a progress bar, then takes the news panel down.

#include <QDialog>
#include <functional>

class QLabel;
class QProgressBar;

namespace zvx {

class Common;

class cleanup : public QDialog {
    Q_OBJECT
  public:
    cleanup(const Common& common, QWidget* parent = nullptr);

    // Takes the news panel down; installed by the main window.
    std::function<void()> unloadNewsClient;

  private:
    void startup();

    const Common& common_;
    QLabel* label_;
    QProgressBar* bar_;
};

}  // namespace zvx
