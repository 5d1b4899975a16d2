#pragma once
// The spreadsheet table of entries: comma-separated values, quoted where needed with
// quotes doubled, records ended by CR LF, UTF-8 behind a byte-order mark.

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace zvx::filters {

// The header row: the entry's folder path, then the names of the 22 entry fields in
// field order.
// clang-format off
inline constexpr std::array<std::string_view, 23> kCsvColumns = {
    "Folder", "Name", "Size", "Path", "Medium ID", "Read-Only", "Medium Description", "Date",
    "Content Type", "Title", "Artist", "Album", "Genre", "Producer", "Style", "Track", "Year",
    "Comment", "Description", "Length", "Bitrate", "Frequency", "Mode"};
// clang-format on

inline constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";

// The field as it stands in a record: quoted when it holds a comma, a quote, CR or LF,
// or begins or ends with a blank, which a spreadsheet would otherwise take apart or trim.
std::string CsvField(std::string_view text);
// The fields joined by commas, ended by CR LF.
std::string CsvRecord(const std::vector<std::string>& fields);

// Reads records from a whole text. A byte-order mark at its start is passed over; a
// record ends at CR LF or LF outside quotes; a quoted field may hold commas, doubled
// quotes and line breaks. Text behind a closing quote belongs to the field, as
// spreadsheets read it.
class CsvParser {
  public:
    explicit CsvParser(std::string_view text);
    // The next record; false at the end of the text.
    bool next(std::vector<std::string>& record);

  private:
    std::string_view text_;
    size_t pos_ = 0;
};

}  // namespace zvx::filters
