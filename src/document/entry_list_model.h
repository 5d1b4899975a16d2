#pragma once
// The rows of ListView1 as a Qt model: each row keeps its entry line, and a cell's text
// is decoded from it when the view asks, so that a folder of 100,000 entries shows at
// once.

#include <QAbstractTableModel>
#include <cstdint>
#include <string_view>
#include <vector>

#include "document/entry_rows.h"

namespace zvx {

struct LoadedSettings;

class EntryListModel : public QAbstractTableModel {
    Q_OBJECT
  public:
    // The row's whole entry line (its Tag).
    static constexpr int TagRole = Qt::UserRole + 1;

    EntryListModel(const LoadedSettings& settings, QObject* parent = nullptr);

    void setRows(EntryRows rows);
    const EntryRows& rows() const { return rows_; }
    // The rows in the order the list shows them (a sort); empty for file order.
    void setOrder(std::vector<uint32_t> order);
    // The line of a shown row.
    std::string_view lineAt(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    const LoadedSettings& settings_;
    EntryRows rows_;
    std::vector<uint32_t> order_;
};

}  // namespace zvx
