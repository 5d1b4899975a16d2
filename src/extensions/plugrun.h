#pragma once
// The wait window: modal while an extension runs, so that nobody changes the documents
// under it and the extension sees the catalogue files at rest. It ends when the lock
// file appears (Timer1, every 50 ms), with the timeout box when the extension has not
// halted within 10 seconds (PHtimeout), or after a fixed time (Timer2).

#include <QDialog>

#include "extensions/wait_mode.h"

class QLabel;
class QTimer;

namespace zvx {

class Common;
class ExtensionHost;

class plugrun : public QDialog {
    Q_OBJECT
  public:
    plugrun(Common& common, ExtensionHost& host, const WaitTimings& timings,
            QWidget* parent = nullptr);

    // Shows the window modally for the program until the wait has ended.
    void showing(const std::string& exeName, const WaitMode& wait);

  private:
    void Timer1_Timer();
    void PHtimeout_Timer();
    void stopTimers();

    Common& common_;
    ExtensionHost& host_;
    QTimer* Timer1_;
    QTimer* PHtimeout_;
    QTimer* Timer2_;
    QLabel* Label1_;
};

}  // namespace zvx
