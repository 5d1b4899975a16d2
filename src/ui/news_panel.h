#pragma once
// The news panel of the main window: the program's own "What's new" items, shown or
// hidden (SHOWNEWSCLIENT) and minimisable to its title bar (NEWSCLIENTMINIMIZED).

#include <QDockWidget>

class QTextBrowser;
class QToolButton;

namespace zvx {

class NewsPanel : public QDockWidget {
    Q_OBJECT
  public:
    explicit NewsPanel(QWidget* parent = nullptr);

    // Start-up: the minimised state and the program's version.
    void initialise(bool minimized, const QString& version);
    bool isMinimized() const { return minimized_; }
    void setMinimized(bool minimized);

  private:
    QTextBrowser* items_;
    QToolButton* minimizeButton_;
    bool minimized_ = false;
};

}  // namespace zvx
