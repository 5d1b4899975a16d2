#include "ui/session_end.h"

#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>

namespace zvx {

namespace {

constexpr std::array<int, 3> kSessionSignals{SIGTERM, SIGHUP, SIGINT};
// The signal handler may only write; the event loop reads the other end.
int signalPipe[2] = {-1, -1};

void OnSignal(int) {
    const char byte = 1;
    [[maybe_unused]] ssize_t written = ::write(signalPipe[0], &byte, 1);
}

}  // namespace

SessionEnd::SessionEnd(std::function<void()> onEnd, QObject* parent)
    : QObject(parent), onEnd_(std::move(onEnd)), notifier_(nullptr) {
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signalPipe) != 0)
        return;
    notifier_ = new QSocketNotifier(signalPipe[1], QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, &SessionEnd::signalled);
    struct sigaction action {};
    action.sa_handler = OnSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int number : kSessionSignals)
        sigaction(number, &action, nullptr);
}

SessionEnd::~SessionEnd() {
    if (!notifier_)
        return;
    for (int number : kSessionSignals)
        signal(number, SIG_DFL);
    delete notifier_;
    ::close(signalPipe[0]);
    ::close(signalPipe[1]);
    signalPipe[0] = signalPipe[1] = -1;
}

void SessionEnd::signalled() {
    char byte = 0;
    [[maybe_unused]] ssize_t read = ::read(signalPipe[1], &byte, 1);
    if (onEnd_)
        onEnd_();
}

}  // namespace zvx
