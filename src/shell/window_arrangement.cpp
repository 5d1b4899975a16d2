#include "shell/window_arrangement.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace zvx {

namespace {

QList<QMdiSubWindow*> OpenWindows(QMdiArea* area, bool minimized) {
    QList<QMdiSubWindow*> windows;
    for (QMdiSubWindow* window : area->subWindowList())
        if (window->isVisible() && window->isMinimized() == minimized)
            windows << window;
    return windows;
}

// Bands of equal size across the free area, in the area's window order.
void Tile(QMdiArea* area, bool horizontal) {
    const QList<QMdiSubWindow*> windows = OpenWindows(area, false);
    if (windows.isEmpty())
        return;
    const QRect free = area->viewport()->rect();
    const int count = static_cast<int>(windows.size());
    for (int i = 0; i < count; ++i) {
        windows[i]->showNormal();
        if (horizontal) {
            const int height = free.height() / count;
            windows[i]->setGeometry(0, i * height, free.width(), height);
        } else {
            const int width = free.width() / count;
            windows[i]->setGeometry(i * width, 0, width, free.height());
        }
    }
}

void ArrangeIcons(QMdiArea* area) {
    int x = 0;
    const int bottom = area->viewport()->height();
    for (QMdiSubWindow* window : OpenWindows(area, true)) {
        const QSize size = window->size();
        window->move(x, bottom - size.height());
        x += size.width();
    }
}

}  // namespace

void ArrangeSubWindows(QMdiArea* area, Arrangement arrangement) {
    switch (arrangement) {
        case Arrangement::Cascade:
            area->cascadeSubWindows();
            break;
        case Arrangement::TileHorizontal:
            Tile(area, true);
            break;
        case Arrangement::TileVertical:
            Tile(area, false);
            break;
        case Arrangement::Icons:
            ArrangeIcons(area);
            break;
    }
}

}  // namespace zvx
