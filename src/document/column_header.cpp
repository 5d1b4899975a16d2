#include "document/column_header.h"

#include <QHeaderView>

namespace zvx {

void ApplyColumnLayout(QHeaderView* header, const ListLayout& layout) {
    const std::vector<int>& order = layout.order();
    for (size_t position = 0; position < order.size(); ++position) {
        const int logical = order[position] - 1;
        header->moveSection(header->visualIndex(logical), static_cast<int>(position));
        const int width = layout.width(order[position]);
        header->setSectionHidden(logical, width == 0);
        if (width > 0)
            header->resizeSection(logical, width);
    }
}

ListLayout HeaderColumnLayout(const QHeaderView* header) {
    const int count = header->count();
    ListLayout layout(count, kColumnWidth);
    for (int visual = 0; visual < count; ++visual) {
        const int column = header->logicalIndex(visual) + 1;
        layout.setPosition(column, visual + 1);
        layout.setWidth(column,
                        header->isSectionHidden(column - 1) ? 0 : header->sectionSize(column - 1));
    }
    return layout;
}

}  // namespace zvx
