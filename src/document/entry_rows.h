#pragma once
// The rows of the entry list (ListView1): one row per listed entry line. A row keeps
// its whole line as the tag, from which every later operation works; the texts shown
// in its 22 columns are decoded from the line when they are asked for, so that a
// listing of a million rows costs one copy of its lines and nothing more.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "common/loaded_settings.h"

namespace zvx {

// The list's columns: 1 "Filename" to 22 "Mode", the entry fields of the same numbers.
inline constexpr int kListColumnCount = 22;

// EntryItem: field 0 (the folder ID, the first eight characters) or field 1 to 22 of a
// line, as a view into it, by the same rule as SplitEntryLine: a line with fewer
// separators repeats its last field in every field behind it.
std::string_view EntryItem(std::string_view line, int field);

// The text a column (1 to 22) of the line's row shows:
//   2 Size      zero-padded groups of three digits, "000 000 000 005" for 5;
//   5 Read-Only "Yes" for "1", otherwise "No";
//   8 Content-Type the type the row's icon stands for (IconFromContentType): the stored
//               text, or the one of the name's extension when the view settings say so;
//   15 Track    with viewRenumbering through the track format, then empty for a
//               numeric value of 0;
//   16 Year     empty for a numeric value of 0;
//   19 to 21    "n/a" for "0";
//   22 Mode     "n/a" when empty;
//   the others  as stored.
std::string DisplayText(std::string_view line, int column, const LoadedSettings& settings);
// The same rules for a stored value alone; Content-Type (8) shows it as stored.
std::string ValueDisplayText(std::string_view value, int column, const LoadedSettings& settings);

// The index of the row's icon in the entry list's image list, from its name and its
// stored content type (IconFromContentType).
int EntryIcon(std::string_view line, const LoadedSettings& settings);

// A row as the list holds it: the texts of its columns (Text, then SubItems(1) to
// SubItems(21)), its icon and its tag, the whole line.
struct EntryRow {
    std::array<std::string, kListColumnCount> texts;
    int icon = 0;
    std::string Tag;
};

// RealShowEntry: the row of one entry line, all columns decoded.
EntryRow RealShowEntry(std::string_view line, const LoadedSettings& settings);

// The rows of one listing, in file order: their lines back to back in large blocks, so
// that a listing of a million rows neither moves its bytes as it grows nor allocates
// once per row.
class EntryRows {
  public:
    void add(std::string_view line);
    void clear();

    size_t size() const { return rows_.size(); }
    bool empty() const { return rows_.empty(); }
    // The row's tag: the whole entry line, folder ID in front. Valid while the rows live.
    std::string_view line(size_t row) const;

  private:
    struct Place {
        uint32_t block;
        uint32_t offset;
        uint32_t length;
    };
    std::vector<std::string> blocks_;  // each filled only up to the capacity it was given
    std::vector<Place> rows_;
};

}  // namespace zvx
