#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace zvx::filters {

// The text with &, <, >, " and ' written as character references.
std::string HtmlEscaped(std::string_view text);

// Writes the entries of the catalogue as one self-contained, printable web page to
// `target`: a heading and a table for each folder that holds entries, in the order of
// their paths; a click on a column header sorts that table. Throws FileError.
void ExportHtml(const std::filesystem::path& catalogue, const std::filesystem::path& target);

}  // namespace zvx::filters
