#pragma once
// The welcome window: new, open, the recent documents, quit.

#include <QDialog>
#include <functional>
#include <string>

class QListWidget;
class QWidget;

namespace zvx {

class Common;

class Form1 : public QDialog {
    Q_OBJECT
  public:
    Form1(Common& common, QWidget* parent = nullptr);

    // ZVXCoreCalls and AskQuit of the main window.
    std::function<void(const std::string&)> coreCalls;
    std::function<void()> askQuit;

    bool recentPanelVisible() const;

  protected:
    // Unloading the window writes firststart and firststart2 as "no".
    void done(int result) override;

  private:
    void fire(const std::string& command);
    void openSelectedRecent();

    Common& common_;
    QWidget* recentPanel_;
    QListWidget* List1_;
};

}  // namespace zvx
