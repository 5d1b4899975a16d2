#include "extensions/plugrun.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "common/common.h"
#include "extensions/extension_host.h"
#include "ui/text_codec.h"

namespace zvx {

namespace {

QTimer* NamedTimer(QObject* parent, const char* name, int interval) {
    auto* timer = new QTimer(parent);
    timer->setObjectName(name);
    timer->setInterval(interval);
    return timer;
}

}  // namespace

plugrun::plugrun(Common& common, ExtensionHost& host, const WaitTimings& timings, QWidget* parent)
    : QDialog(parent), common_(common), host_(host) {
    setObjectName("plugrun");
    setWindowTitle("Executing ZVX-Extension");
    setModal(true);
    Label1_ = new QLabel;
    Label1_->setObjectName("Label1");
    // The running program's animation is decoration; a busy bar stands in for it.
    auto* busy = new QProgressBar;
    busy->setRange(0, 0);
    busy->setTextVisible(false);
    // Bringing a program to the front is left to the window system, which may refuse it.
    auto* front = new QPushButton("Refresh / Set to foreground");
    front->setObjectName("Command1");
    connect(front, &QPushButton::clicked, this, [this] { update(); });
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Label1_);
    layout->addWidget(busy);
    layout->addWidget(front);
    Timer1_ = NamedTimer(this, "Timer1", timings.pollMilliseconds);
    PHtimeout_ = NamedTimer(this, "PHtimeout", timings.timeoutMilliseconds);
    Timer2_ = NamedTimer(this, "Timer2", 0);
    Timer2_->setSingleShot(true);
    connect(Timer1_, &QTimer::timeout, this, &plugrun::Timer1_Timer);
    connect(PHtimeout_, &QTimer::timeout, this, &plugrun::PHtimeout_Timer);
    connect(Timer2_, &QTimer::timeout, this, &QDialog::accept);
    connect(this, &QDialog::finished, this, &plugrun::stopTimers);
}

void plugrun::showing(const std::string& exeName, const WaitMode& wait) {
    stopTimers();
    Label1_->setText(ToQString(exeName));
    if (wait.kind == WaitMode::Kind::Lock)
        Timer1_->start();
    if (wait.kind == WaitMode::Kind::Timed)
        Timer2_->start(wait.milliseconds);
    setCursor(Qt::BusyCursor);
    exec();
}

void plugrun::Timer1_Timer() {
    if (host_.PLUGHALT()) {
        PHtimeout_->stop();
        accept();
        return;
    }
    // Enabling a running timer does not restart it: the 10 seconds count from the first
    // look that found no lock file.
    if (!host_.pluginHalted && !PHtimeout_->isActive())
        PHtimeout_->start();
}

void plugrun::PHtimeout_Timer() {
    PHtimeout_->stop();
    if (host_.pluginHalted)
        return;
    Timer1_->stop();
    common_.screen().message("Extension-Error!",
                             "Execution Of External Application Reached Timeout!",
                             MsgButtons::OkOnly, MsgIcon::Critical);
    accept();
}

void plugrun::stopTimers() {
    Timer1_->stop();
    PHtimeout_->stop();
    Timer2_->stop();
}

}  // namespace zvx
