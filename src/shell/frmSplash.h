#pragma once
// The splash window: shows the stages of the start as they go by.

#include <QWidget>

class QLabel;
class QTimer;

namespace zvx {

class frmSplash : public QWidget {
    Q_OBJECT
  public:
    explicit frmSplash(QWidget* parent = nullptr);

    // Sets the status label and repaints it at once: the start blocks the thread.
    void setStatus(const QString& text);
    QString status() const;
    // The end of a start with a document: "All done.", and the window goes 800 ms later
    // (or at a click).
    void finish();

  protected:
    // clicko: a click removes the window once the start is done.
    void mousePressEvent(QMouseEvent* event) override;

  private:
    QLabel* label_;
    QTimer* timer_;
};

inline constexpr const char* kSplashDone = "All done.";
// A splash window, never kept above the others: once the main window owns it, the
// dialogs of the start (the first-run question) come in front of it.
inline constexpr Qt::WindowFlags kSplashFlags = Qt::SplashScreen | Qt::FramelessWindowHint;

}  // namespace zvx
