#pragma once
// The short text about a file's content that the information display shows.

#include <filesystem>
#include <string>
#include <string_view>

namespace zvx {

// The summary of the file at `path` by its content category, the one that
// ContentTypeFromExtension gave for the file's extension (compared in lower case):
// - "txt": the first five lines of the file joined by CR, where leading empty lines
//   vanish (they count towards the five all the same);
// - any other category: an empty text.
// A file that cannot be read gives "Error while retrieving ZVX-Content information
// for: " with the path and the category in brackets.
std::string FileContentSummary(const std::filesystem::path& path, std::string_view contentCategory);

}  // namespace zvx
