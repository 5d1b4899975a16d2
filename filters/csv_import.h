#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zvx::filters {

// A table that cannot be read as entries (no header row).
class CsvImportError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// The catalogue for a spreadsheet table as the CSV export writes it. Columns are found
// by their header names, without regard to case, so extra columns are passed over and
// missing ones leave their field empty. The folders come from the "Folder" column, each
// with all its ancestors, numbered from 00000000 in the order they first appear; a row
// without a folder goes to "Imported Entries\". Every text is taken by the code-page
// rule (a table saved as Windows-1252 reads right too), and a line break inside a field
// becomes a blank. Throws CsvImportError.
std::string CatalogueFromCsv(std::string_view table);

// Reads the table at `source` and writes its catalogue to `target`. Throws FileError or
// CsvImportError; `target` is written only when the whole table was read.
void ImportCsv(const std::filesystem::path& source, const std::filesystem::path& target);

}  // namespace zvx::filters
