#pragma once
// Arranging the document windows inside the main window.

class QMdiArea;

namespace zvx {

enum class Arrangement {
    Cascade,
    TileHorizontal,  // one above the other, each the full width
    TileVertical,    // side by side, each the full height
    Icons,           // minimised windows in a row along the bottom
};

void ArrangeSubWindows(QMdiArea* area, Arrangement arrangement);

}  // namespace zvx
