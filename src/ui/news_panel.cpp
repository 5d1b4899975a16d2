#include "ui/news_panel.h"

#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QTextBrowser>
#include <QToolButton>
#include <QVBoxLayout>

namespace zvx {

NewsPanel::NewsPanel(QWidget* parent) : QDockWidget("News", parent) {
    setObjectName("NewsClient");
    setFeatures(QDockWidget::DockWidgetMovable);
    auto* body = new QWidget;
    auto* layout = new QVBoxLayout(body);
    layout->setContentsMargins(2, 2, 2, 2);
    auto* bar = new QHBoxLayout;
    bar->addWidget(new QLabel("ZVX News"), 1);
    minimizeButton_ = new QToolButton;
    minimizeButton_->setObjectName("NewsMinimize");
    minimizeButton_->setAutoRaise(true);
    connect(minimizeButton_, &QToolButton::clicked, this, [this] { setMinimized(!minimized_); });
    bar->addWidget(minimizeButton_);
    layout->addLayout(bar);
    items_ = new QTextBrowser;
    items_->setObjectName("NewsItems");
    items_->setOpenExternalLinks(false);
    layout->addWidget(items_);
    setWidget(body);
    setMinimized(false);
}

void NewsPanel::initialise(bool minimized, const QString& version) {
    QFile file(":/news/whatsnew.html");
    QString html = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    items_->setHtml(html + "<p><small>ZVX " + version.toHtmlEscaped() + "</small></p>");
    setMinimized(minimized);
}

void NewsPanel::setMinimized(bool minimized) {
    minimized_ = minimized;
    items_->setVisible(!minimized);
    minimizeButton_->setText(minimized ? "+" : "_");
    minimizeButton_->setToolTip(minimized ? "Restore the news" : "Minimise the news");
}

}  // namespace zvx
