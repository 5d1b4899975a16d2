#include "document/entry_list_model.h"

#include "common/loaded_settings.h"
#include "document/column_layout.h"
#include "ui/content_icons.h"
#include "ui/text_codec.h"

namespace zvx {

EntryListModel::EntryListModel(const LoadedSettings& settings, QObject* parent)
    : QAbstractTableModel(parent), settings_(settings) {}

void EntryListModel::setRows(EntryRows rows) {
    beginResetModel();
    rows_ = std::move(rows);
    order_.clear();
    endResetModel();
}

void EntryListModel::setOrder(std::vector<uint32_t> order) {
    beginResetModel();
    order_ = std::move(order);
    endResetModel();
}

std::string_view EntryListModel::lineAt(int row) const {
    const size_t index = static_cast<size_t>(row);
    return rows_.line(order_.empty() ? index : order_[index]);
}

int EntryListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int EntryListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kListColumnCount;
}

QVariant EntryListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || static_cast<size_t>(index.row()) >= rows_.size())
        return {};
    const std::string_view line = lineAt(index.row());
    switch (role) {
        case Qt::DisplayRole:
            return ToQString(DisplayText(line, index.column() + 1, settings_));
        case Qt::DecorationRole:
            if (index.column() == 0)
                return ContentIcon(EntryIcon(line, settings_));
            return {};
        case TagRole:
            return QByteArray(line.data(), static_cast<qsizetype>(line.size()));
        default:
            return {};
    }
}

QVariant EntryListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= kListColumnCount)
        return {};
    return QString(kListColumnTitles[static_cast<size_t>(section)]);
}

}  // namespace zvx
