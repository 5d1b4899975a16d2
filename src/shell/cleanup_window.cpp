#include "shell/cleanup_window.h"

#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>

#include "shell/cleanup.h"

namespace zvx {

cleanup::cleanup(const Common& common, QWidget* parent) : QDialog(parent), common_(common) {
    setObjectName("cleanup");
    setWindowTitle(kCleanupCaption);
    auto* layout = new QVBoxLayout(this);
    label_ = new QLabel(kCleanupRemovingLabel);
    label_->setObjectName("Label1");
    layout->addWidget(label_);
    bar_ = new QProgressBar;
    bar_->setObjectName("ProgressBar1");
    layout->addWidget(bar_);
    setMinimumWidth(320);
    // The work starts at the first tick, once the window is on the screen.
    auto* timer = new QTimer(this);
    timer->setObjectName("Timer1");
    timer->setSingleShot(true);
    timer->setInterval(1);
    connect(timer, &QTimer::timeout, this, &cleanup::startup);
    timer->start();
}

void cleanup::startup() {
    RemoveTemporaryFiles(common_, [this](long long done, long long total) {
        bar_->setMaximum(static_cast<int>(std::max(total, 1LL)));
        bar_->setValue(static_cast<int>(done));
    });
    label_->setText(kCleanupUnloadingLabel);
    label_->repaint();
    label_->setText(kCleanupInternetLabel);
    label_->repaint();
    if (unloadNewsClient)
        unloadNewsClient();
    accept();
}

}  // namespace zvx
