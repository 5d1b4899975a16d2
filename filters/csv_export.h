#pragma once

#include <filesystem>

namespace zvx::filters {

// Writes the entries of the catalogue as a spreadsheet table to `target`: the header row,
// then one record an entry (its folder's path, then its fields). Throws FileError.
void ExportCsv(const std::filesystem::path& catalogue, const std::filesystem::path& target);

}  // namespace zvx::filters
