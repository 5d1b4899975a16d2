#include "shell/frmSplash.h"

#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include "ui/about.h"
#include "ui/icons.h"

namespace zvx {

frmSplash::frmSplash(QWidget* parent) : QWidget(parent, kSplashFlags) {
    setObjectName("frmSplash");
    setAttribute(Qt::WA_DeleteOnClose);
    auto* layout = new QVBoxLayout(this);
    auto* logo = new QLabel;
    logo->setPixmap(ThemeIcon("zvx").pixmap(64, 64));
    layout->addWidget(logo, 0, Qt::AlignHCenter);
    layout->addWidget(new QLabel("<h2>ZVX</h2>"), 0, Qt::AlignHCenter);
    layout->addWidget(new QLabel("Version " + VersionText()), 0, Qt::AlignHCenter);
    label_ = new QLabel;
    label_->setObjectName("Label1");
    layout->addWidget(label_, 0, Qt::AlignHCenter);
    setFixedSize(320, 200);
    timer_ = new QTimer(this);
    timer_->setObjectName("Timer1");
    timer_->setSingleShot(true);
    timer_->setInterval(800);
    connect(timer_, &QTimer::timeout, this, &QWidget::close);
}

void frmSplash::setStatus(const QString& text) {
    label_->setText(text);
    label_->repaint();
}

QString frmSplash::status() const {
    return label_->text();
}

void frmSplash::finish() {
    setStatus(kSplashDone);
    timer_->start();
}

void frmSplash::mousePressEvent(QMouseEvent*) {
    if (status() == kSplashDone)
        close();
}

}  // namespace zvx
