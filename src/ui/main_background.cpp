#include "ui/main_background.h"

#include <QIcon>
#include <QPixmap>

namespace zvx {

// Drawn through QIcon, which renders SVG with the icon engine the theme icons use.
QBrush MainBackground() {
    return QBrush(QIcon(":/pictures/background.svg").pixmap(256, 256));
}

}  // namespace zvx
