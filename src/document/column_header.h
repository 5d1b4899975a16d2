#pragma once
// A column layout shown in the header of a list control, and read back from it.

#include "document/column_layout.h"

class QHeaderView;

namespace zvx {

// The width of a column that no layout has sized.
inline constexpr int kColumnWidth = 100;

// Puts every column of the layout at its position with its width; a width of 0 hides it.
void ApplyColumnLayout(QHeaderView* header, const ListLayout& layout);

// The layout the header shows: each column's position and width (0 when hidden). The
// sort state is left at its default.
ListLayout HeaderColumnLayout(const QHeaderView* header);

}  // namespace zvx
