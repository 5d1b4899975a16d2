#include "finding/search_result_model.h"

#include <algorithm>

#include "common/loaded_settings.h"
#include "document/entry_list_model.h"
#include "finding/result_row.h"
#include "finding/search_run.h"
#include "store/catalogue_format.h"
#include "ui/content_icons.h"
#include "ui/text_codec.h"

namespace zvx {

namespace {

constexpr int kFolderColumn = 2;

// The line behind its folder ID.
std::string_view Tail(std::string_view tag) {
    return tag.substr(std::min(tag.size(), kFolderIdLength));
}

}  // namespace

SearchResultModel::SearchResultModel(const LoadedSettings& settings, QObject* parent)
    : QAbstractTableModel(parent), settings_(settings), titles_(ResultColumnTitles()) {}

void SearchResultModel::setRows(EntryRows rows) {
    beginResetModel();
    rows_ = std::move(rows);
    folderOfRow_.clear();
    folders_.clear();
    order_.clear();
    endResetModel();
}

void SearchResultModel::setFolders(std::vector<uint32_t> folderOfRow,
                                   std::vector<std::string> folders) {
    folderOfRow_ = std::move(folderOfRow);
    folders_ = std::move(folders);
    if (rowCount() > 0)
        emit dataChanged(index(0, kFolderColumn - 1), index(rowCount() - 1, kFolderColumn - 1));
}

void SearchResultModel::setOrder(std::vector<uint32_t> order) {
    beginResetModel();
    order_ = std::move(order);
    endResetModel();
}

size_t SearchResultModel::fileRow(int row) const {
    const size_t index = static_cast<size_t>(row);
    return order_.empty() ? index : order_[index];
}

std::string_view SearchResultModel::tagAt(int row) const {
    return rows_.line(fileRow(row));
}

std::string SearchResultModel::text(size_t line, int column) const {
    if (column == kFolderColumn)
        return line < folderOfRow_.size() ? folders_[folderOfRow_[line]] : kNotResolvedYet;
    return ResultRowTexts(Tail(rows_.line(line)), settings_)[static_cast<size_t>(column - 1)];
}

int SearchResultModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int SearchResultModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kResultColumnCount;
}

QVariant SearchResultModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    switch (role) {
        case Qt::DisplayRole:
            return ToQString(textAt(index.row(), index.column() + 1));
        case Qt::DecorationRole:
            if (index.column() != 0)
                return {};
            return ContentIcon(ResultRowIcon(Tail(tagAt(index.row())), settings_));
        case EntryListModel::TagRole: {
            const std::string_view tag = tagAt(index.row());
            return QByteArray(tag.data(), static_cast<qsizetype>(tag.size()));
        }
        default:
            return {};
    }
}

QVariant SearchResultModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= kResultColumnCount)
        return {};
    return ToQString(titles_[static_cast<size_t>(section)]);
}

}  // namespace zvx
