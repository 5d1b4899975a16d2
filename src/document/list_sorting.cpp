#include "document/list_sorting.h"

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>

#include "common/text_case.h"
#include "document/entry_rows.h"

namespace zvx {

namespace {

// The sort texts of all rows, upper-cased, back to back in one buffer.
class SortTexts {
  public:
    SortTexts(size_t count, const std::function<std::string(size_t)>& textOf) {
        ends_.reserve(count);
        for (size_t row = 0; row < count; ++row) {
            appendUpper(textOf(row));
            ends_.push_back(bytes_.size());
        }
    }
    std::string_view text(uint32_t row) const {
        const size_t begin = row == 0 ? 0 : ends_[row - 1];
        return std::string_view(bytes_).substr(begin, ends_[row] - begin);
    }

  private:
    // Most texts are plain ASCII, which is cased here without the general rule's cost.
    void appendUpper(const std::string& text) {
        if (std::any_of(text.begin(), text.end(), [](char c) { return c & 0x80; })) {
            bytes_ += UpperCase(text);
            return;
        }
        for (char c : text)
            bytes_ += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    }

    std::string bytes_;
    std::vector<size_t> ends_;
};

// A row to sort, with the first sixteen bytes of its text as two numbers, so that most
// comparisons never reach the texts themselves (sizes share their first eight).
struct SortItem {
    uint64_t high;
    uint64_t low;
    uint32_t row;
};

// Eight bytes of the text from `at` as a number that orders as the bytes do.
uint64_t Prefix(std::string_view text, size_t at) {
    uint64_t prefix = 0;
    for (size_t i = at; i < at + 8; ++i)
        prefix = prefix << 8 | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0);
    return prefix;
}

}  // namespace

void ColumnClick(ListSort& sort, int columnIndex) {
    if (columnIndex - 1 != sort.SortKey)
        sort.SortKey = columnIndex - 1;
    else
        sort.SortOrder = sort.SortOrder == kSortAscending ? kSortDescending : kSortAscending;
}

std::vector<uint32_t> SortedRowOrder(const EntryRows& rows, const ListSort& sort,
                                     const LoadedSettings& settings) {
    return SortedRowOrder(
        rows.size(),
        [&](size_t row) { return DisplayText(rows.line(row), sort.SortKey + 1, settings); },
        sort.SortOrder);
}

std::vector<uint32_t> SortedRowOrder(size_t count, const std::function<std::string(size_t)>& textOf,
                                     int sortOrder) {
    const SortTexts texts(count, textOf);
    std::vector<SortItem> items(count);
    for (uint32_t row = 0; row < items.size(); ++row)
        items[row] = {Prefix(texts.text(row), 0), Prefix(texts.text(row), 8), row};
    const bool descending = sortOrder == kSortDescending;
    // Rows of equal texts keep their file order in both directions.
    std::sort(items.begin(), items.end(), [&](const SortItem& a, const SortItem& b) {
        if (a.high != b.high)
            return descending ? b.high < a.high : a.high < b.high;
        if (a.low != b.low)
            return descending ? b.low < a.low : a.low < b.low;
        const int order = texts.text(a.row).compare(texts.text(b.row));
        if (order != 0)
            return descending ? order > 0 : order < 0;
        return a.row < b.row;
    });
    std::vector<uint32_t> order(items.size());
    for (size_t i = 0; i < items.size(); ++i)
        order[i] = items[i].row;
    return order;
}

}  // namespace zvx
