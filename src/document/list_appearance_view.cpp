#include "document/list_appearance_view.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QTreeView>

#include "ui/main_background.h"

namespace zvx {

namespace {

// Selects the row under the resting mouse. The mouse moves are seen on the viewport,
// which mouse tracking lets them reach without a button held.
class HoverSelection : public QObject {
  public:
    explicit HoverSelection(QAbstractItemView* view) : QObject(view), view_(view) {
        timer_ = new QTimer(view);
        timer_->setObjectName("HoverTimer");
        timer_->setSingleShot(true);
        timer_->setInterval(kHoverSelectMs);
        connect(timer_, &QTimer::timeout, this, &HoverSelection::select);
        view->viewport()->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::MouseMove) {
            at_ = static_cast<QMouseEvent*>(event)->position().toPoint();
            timer_->start();
        } else if (event->type() == QEvent::Leave) {
            timer_->stop();
        }
        return false;
    }

  private:
    void select() {
        const QModelIndex index = view_->indexAt(at_);
        if (!index.isValid())
            return;
        view_->selectionModel()->setCurrentIndex(
            index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }

    QAbstractItemView* view_;
    QTimer* timer_;
    QPoint at_;
};

void ShowBackground(QAbstractItemView* view) {
    QPalette palette = view->viewport()->palette();
    palette.setBrush(QPalette::Base, MainBackground());
    view->viewport()->setPalette(palette);
}

}  // namespace

ListLookDelegate::ListLookDelegate(bool gridLines, bool hotTracking, QObject* parent)
    : QStyledItemDelegate(parent), gridLines_(gridLines), hotTracking_(hotTracking) {}

void ListLookDelegate::initStyleOption(QStyleOptionViewItem* option,
                                       const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (hotTracking_ && option->state.testFlag(QStyle::State_MouseOver))
        option->font.setUnderline(true);
}

void ListLookDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    const bool hot = hotTracking_ && option.state.testFlag(QStyle::State_MouseOver) &&
                     !option.state.testFlag(QStyle::State_Selected);
    if (hot) {
        QColor shade = option.palette.color(QPalette::Highlight);
        shade.setAlpha(48);
        painter->fillRect(option.rect, shade);
    }
    QStyledItemDelegate::paint(painter, option, index);
    if (!gridLines_)
        return;
    painter->save();
    painter->setPen(option.palette.color(QPalette::Mid));
    painter->drawLine(option.rect.topRight(), option.rect.bottomRight());
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    painter->restore();
}

void ApplyListAppearance(QAbstractItemView* view, const ListAppearance& look) {
    view->setSelectionBehavior(look.selRow ? QAbstractItemView::SelectRows
                                           : QAbstractItemView::SelectItems);
    const bool grid = look.showGrid && qobject_cast<QTreeView*>(view);
    view->setItemDelegate(new ListLookDelegate(grid, look.hot, view));
    // The view learns which row is under the mouse from hover events.
    view->viewport()->setAttribute(Qt::WA_Hover, look.hot);
    view->setMouseTracking(look.hot || look.hover);
    if (look.hover)
        new HoverSelection(view);
    if (look.showBack)
        ShowBackground(view);
}

}  // namespace zvx
