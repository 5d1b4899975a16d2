#pragma once
// The end of a session reaches the program as a signal (SIGTERM at log-out or shutdown,
// SIGHUP when its terminal goes, SIGINT from Ctrl+C). Each is turned into a call on the
// event loop, so that the program ends in order, as by its close box, instead of being
// cut off with its working copies and temporary files left behind.

#include <QObject>
#include <functional>

class QSocketNotifier;

namespace zvx {

class SessionEnd : public QObject {
  public:
    // One at a time: the signal handlers are the process's.
    SessionEnd(std::function<void()> onEnd, QObject* parent = nullptr);
    // Gives the signals back their default handling.
    ~SessionEnd() override;

  private:
    void signalled();

    std::function<void()> onEnd_;
    QSocketNotifier* notifier_;
};

}  // namespace zvx
