#pragma once
// The entry lines of a catalogue folder, and fields picked out of a line to compare
// several in one go.

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "store/entry_line.h"
#include "store/folder_listing.h"

namespace zvx::test {

inline std::vector<std::string> FolderLines(const std::filesystem::path& file,
                                            const std::string& id) {
    std::vector<std::string> lines;
    ListFolderEntries(file, id, [&](std::string_view line) { lines.emplace_back(line); });
    return lines;
}

// The fields at the indexes, each followed by "|".
inline std::string Fields(std::string_view line, std::initializer_list<size_t> at) {
    const EntryFields fields = SplitEntryLine(line);
    std::string picked;
    for (size_t i : at)
        picked += std::string(fields[i]) + "|";
    return picked;
}

}  // namespace zvx::test
