#pragma once
// The rows of the search window's result list as a Qt model: each row keeps its entry
// line (its tag, the folder ID followed by the tail) and the folder its "ZVX-Folder"
// column shows; the other texts are decoded from the line when the view asks.

#include <QAbstractTableModel>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/entry_rows.h"

namespace zvx {

struct LoadedSettings;

class SearchResultModel : public QAbstractTableModel {
    Q_OBJECT
  public:
    SearchResultModel(const LoadedSettings& settings, QObject* parent = nullptr);

    // The rows of a run, in file order, each showing "<not resolved>" as its folder.
    void setRows(EntryRows rows);
    const EntryRows& rows() const { return rows_; }
    // The column "ZVX-Folder" of every row, in file order.
    void setFolders(std::vector<uint32_t> folderOfRow, std::vector<std::string> folders);
    // The rows in the order the list shows them (a sort); empty for file order.
    void setOrder(std::vector<uint32_t> order);

    // The tag and the column texts (columns from 1) of a shown row.
    std::string_view tagAt(int row) const;
    std::string textAt(int row, int column) const { return text(fileRow(row), column); }
    // A column's text of a row by its place in file order.
    std::string text(size_t line, int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    size_t fileRow(int row) const;

    const LoadedSettings& settings_;
    EntryRows rows_;
    std::vector<uint32_t> folderOfRow_;
    std::vector<std::string> folders_;
    std::vector<uint32_t> order_;
    std::vector<std::string> titles_;
};

}  // namespace zvx
