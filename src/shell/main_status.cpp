// The main window's status bar, progress bar and timers.

#include <QApplication>
#include <QDate>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <climits>

#include "common/common.h"
#include "shell/command_file.h"
#include "shell/frmMain.h"
#include "ui/about.h"
#include "ui/command_guard.h"
#include "ui/news_panel.h"
#include "ui/text_codec.h"

namespace zvx {

namespace {
constexpr int kTwipsPerPixel = 15;
}

void frmMain::buildStatusBar() {
    const char* names[] = {"Panel1", "Panel2", "Panel3"};
    for (int i = 0; i < 3; ++i) {
        panels_[i] = new QLabel;
        panels_[i]->setObjectName(names[i]);
        statusBar()->addWidget(panels_[i], i == 1 ? 3 : 1);
    }
    panels_[1]->setText(ToQString(statusLine_.panelText()));
    auto* version = new QLabel(VersionText());
    version->setObjectName("Panel4");
    statusBar()->addPermanentWidget(version);

    // Timer1: every 10 seconds the date takes panel 3 back from an estimate.
    Timer1_ = new QTimer(this);
    Timer1_->setObjectName("Timer1");
    Timer1_->setInterval(10000);
    connect(Timer1_, &QTimer::timeout, this, &frmMain::showDate);
    Timer1_->start();
    // Timer2: the command file poll, off while an operation runs.
    Timer2_ = new QTimer(this);
    Timer2_->setObjectName("Timer2");
    Timer2_->setInterval(300);
    connect(Timer2_, &QTimer::timeout, this, &frmMain::pollCommandFile);
    Timer2_->start();
    // Timer5: empties the progress bar once the operation has let the thread go.
    Timer5_ = new QTimer(this);
    Timer5_->setObjectName("Timer5");
    Timer5_->setInterval(1);
    connect(Timer5_, &QTimer::timeout, this, &frmMain::resetProgressBar);
    showDate();
}

void frmMain::status(const std::string& text) {
    StatusUpdate update = statusLine_.status(text, common_.progressValue, common_.progressMax);
    if (update.estimate)
        panels_[2]->setText(ToQString(*update.estimate));
    if (update.repeated)
        return;
    if (update.busy != busy_) {
        busy_ = update.busy;
        if (busy_)
            QApplication::setOverrideCursor(Qt::WaitCursor);
        else
            QApplication::restoreOverrideCursor();
    }
    if (update.pollTimerOn)
        Timer2_->start();
    else
        Timer2_->stop();
    if (update.showDate)
        showDate();
    panels_[1]->setText(ToQString(update.panelText));
    if (update.refreshNow || update.showDate)
        statusBar()->repaint();
}

void frmMain::eStimaToR() {
    std::optional<std::string> estimate =
        estimator_.eStimaToR(common_.progressValue, common_.progressMax);
    if (!estimate)
        return;
    if (!ProgressBand_->isHidden()) {
        if (ProgressBar1_->maximum() != common_.progressMax)
            ProgressBar1_->setMaximum(
                static_cast<int>(std::min<long long>(common_.progressMax, INT_MAX)));
        ProgressBar1_->setValue(
            static_cast<int>(std::min<long long>(common_.progressValue, INT_MAX)));
        ProgressBar1_->repaint();
        Timer5_->start();
    }
    panels_[2]->setText(ToQString(*estimate));
}

void frmMain::progress(long long, long long) {
    eStimaToR();
}

void frmMain::setSummary(const QString& text) {
    panels_[0]->setText(text);
}

void frmMain::resetProgressBar() {
    if (ProgressBar1_->value() > 0)
        ProgressBar1_->setValue(0);
    Timer5_->stop();
}

void frmMain::showDate() {
    panels_[2]->setText(QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
}

void frmMain::pollCommandFile() {
    RunGuarded(common_, [this] { poll_->tick(); });
}

void frmMain::applyWindowSettings(const WindowSettings& settings) {
    setGeometry(static_cast<int>(settings.left / kTwipsPerPixel),
                static_cast<int>(settings.top / kTwipsPerPixel),
                static_cast<int>(settings.width / kTwipsPerPixel),
                static_cast<int>(settings.height / kTwipsPerPixel));
    statusBar()->setVisible(settings.statusBar);
    menuEntry("mnuViewStatusBar")->setChecked(settings.statusBar);
    news_->setVisible(settings.showNewsClient);
    menuEntry("newsclientbar")->setChecked(settings.showNewsClient);
    if (settings.winState == kWindowMaximized)
        setWindowState(Qt::WindowMaximized);
    else if (settings.winState == kWindowMinimized)
        setWindowState(Qt::WindowMinimized);
}

WindowSettings frmMain::currentWindowSettings() const {
    WindowSettings settings;
    const QRect frame = normalGeometry();
    settings.left = frame.x() * kTwipsPerPixel;
    settings.top = frame.y() * kTwipsPerPixel;
    settings.width = frame.width() * kTwipsPerPixel;
    settings.height = frame.height() * kTwipsPerPixel;
    settings.winState = isMinimized()   ? kWindowMinimized
                        : isMaximized() ? kWindowMaximized
                                        : kWindowNormal;
    settings.statusBar = !statusBar()->isHidden();
    settings.showNewsClient = !news_->isHidden();
    settings.newsClientMinimized = news_->isMinimized();
    settings.bars = bars_;
    return settings;
}

}  // namespace zvx
