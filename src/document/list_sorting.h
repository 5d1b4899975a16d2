#pragma once
// Sorting of an entry list by a column header click. The list sorts the texts its rows
// show, which is why sizes are zero-padded.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "common/loaded_settings.h"

namespace zvx {

class EntryRows;

inline constexpr int kSortAscending = 0;
inline constexpr int kSortDescending = 1;

// The list's sort state: SortKey is the sorted column's index less 1 (0 is the first
// column), SortOrder kSortAscending or kSortDescending.
struct ListSort {
    int SortKey = 0;
    int SortOrder = kSortAscending;
};

// A click on the header of the column with the 1-based `columnIndex`: another column
// becomes the sort key, the sorted column flips its order.
void ColumnClick(ListSort& sort, int columnIndex);

// The rows in the order the list shows them when sorted by `sort` (SortKey 0 to 21 is
// column 1 to 22): by the column's texts without regard to case, rows of equal texts in
// file order.
std::vector<uint32_t> SortedRowOrder(const EntryRows& rows, const ListSort& sort,
                                     const LoadedSettings& settings);

// The same order for any list: `count` rows whose texts in the sorted column `textOf`
// gives, in the order kSortAscending or kSortDescending.
std::vector<uint32_t> SortedRowOrder(size_t count, const std::function<std::string(size_t)>& textOf,
                                     int sortOrder);

}  // namespace zvx
