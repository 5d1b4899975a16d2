#include "ui/icons.h"

#include <QFile>

static void InitIconResources() {
    Q_INIT_RESOURCE(icons);
}

namespace zvx {

void InitUiResources() {
    InitIconResources();
}

QIcon ThemeIcon(const QString& name) {
    const QString own = ":/icons/" + name + ".svg";
    QIcon fallback = QFile::exists(own) ? QIcon(own) : QIcon();
    return QIcon::fromTheme(name, fallback);
}

}  // namespace zvx
