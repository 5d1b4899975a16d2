#include "ui/flat_look.h"

#include <QApplication>

namespace zvx {

namespace {
constexpr const char* kFlatStyle = R"(
QPushButton { border: 1px solid palette(mid); border-radius: 2px; padding: 3px 10px;
              background: palette(button); }
QPushButton:hover { background: palette(light); }
QPushButton:pressed { background: palette(midlight); }
QToolButton { border: 1px solid transparent; border-radius: 2px; padding: 2px; }
QToolButton:hover { border-color: palette(mid); background: palette(light); }
QHeaderView::section { border: none; border-right: 1px solid palette(midlight);
                       border-bottom: 1px solid palette(midlight); padding: 2px 4px;
                       background: palette(button); }
)";
}

void ApplyFlatLook(QApplication& app, bool flat) {
    app.setStyleSheet(flat ? kFlatStyle : "");
}

}  // namespace zvx
