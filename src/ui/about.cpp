#include "ui/about.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/desktop.h"
#include "ui/icons.h"

namespace zvx {

namespace {

QLabel* Link(Desktop& desktop, const char* url, const QString& text, const char* name) {
    auto* label = new QLabel(QString("<a href=\"%1\">%2</a>").arg(url, text));
    label->setObjectName(name);
    label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    QObject::connect(label, &QLabel::linkActivated, label,
                     [&desktop](const QString& link) { desktop.openUrl(QUrl(link)); });
    return label;
}

}  // namespace

QString VersionText() {
    return QString("%1.%2 (B.%3)")
        .arg(ZVX_VERSION_MAJOR)
        .arg(ZVX_VERSION_MINOR)
        .arg(ZVX_VERSION_PATCH);
}

frmAbout::frmAbout(Desktop& desktop, QWidget* parent) : QDialog(parent) {
    setObjectName("frmAbout");
    setWindowTitle("About ZVX");
    auto* layout = new QVBoxLayout(this);
    auto* logo = new QLabel;
    logo->setPixmap(ThemeIcon("zvx").pixmap(48, 48));
    layout->addWidget(logo, 0, Qt::AlignHCenter);
    auto* title = new QLabel("<b>ZVX</b> – the media cataloguer");
    title->setObjectName("Label1");
    layout->addWidget(title, 0, Qt::AlignHCenter);
    auto* version = new QLabel("Version " + VersionText());
    version->setObjectName("Label2");
    layout->addWidget(version, 0, Qt::AlignHCenter);
    layout->addWidget(Link(desktop, kHomePageUrl, "ZVX on the web", "Link1"), 0, Qt::AlignHCenter);
    layout->addWidget(Link(desktop, kNewsPageUrl, "News and updates", "Link2"), 0,
                      Qt::AlignHCenter);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    layout->addWidget(buttons);
}

}  // namespace zvx
