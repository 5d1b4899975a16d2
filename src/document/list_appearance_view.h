#pragma once
// ApplyListAppearance on a view of the entry list: the appearance switches of
// list_appearance.h made visible.

#include <QStyledItemDelegate>

#include "document/list_appearance.h"

class QAbstractItemView;

namespace zvx {

// How long the mouse rests on a row before hover selection selects it, as the desktop's
// hover time.
inline constexpr int kHoverSelectMs = 400;

// Draws the rows with grid lines (GridLines) and the row under the mouse highlighted and
// underlined (HotTracking).
class ListLookDelegate : public QStyledItemDelegate {
    Q_OBJECT
  public:
    ListLookDelegate(bool gridLines, bool hotTracking, QObject* parent);

    bool gridLines() const { return gridLines_; }
    bool hotTracking() const { return hotTracking_; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

  private:
    bool gridLines_;
    bool hotTracking_;
};

// Applies the switches to a view: LISTVIEWSHOWBACK the main window's picture behind the
// rows, LISTVIEWSELROW whole rows selected, LISTVIEWSHOWGRID grid lines between the cells
// (in the report view; the icon views have no cells), LISTVIEWHOT hot tracking,
// LISTVIEWHOVER hover selection: the row under the mouse that rests for kHoverSelectMs
// becomes the selection (the view's "HoverTimer" counts the rest).
void ApplyListAppearance(QAbstractItemView* view, const ListAppearance& look);

}  // namespace zvx
