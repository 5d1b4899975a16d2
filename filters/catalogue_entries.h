#pragma once
// The entries of a catalogue as the export filters see them: each with its folder's path
// and its 22 fields, all in UTF-8 by the code-page rule.

#include <array>
#include <filesystem>
#include <functional>
#include <string>

namespace zvx::filters {

struct ExportedEntry {
    // The folder's path as in the TOC ("Music\Rock\"); empty when no folder has the ID.
    std::string folder;
    std::array<std::string, 22> fields;  // fields 1 to 22
};

// Calls `visit` for each entry line of the catalogue, in file order. Throws FileError
// when the file cannot be read.
void ForEachExportedEntry(const std::filesystem::path& catalogue,
                          const std::function<void(const ExportedEntry&)>& visit);

}  // namespace zvx::filters
