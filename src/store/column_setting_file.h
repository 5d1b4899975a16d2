#pragma once
// A column layout of an entry list, kept as "<name>.zvl" in the CONFIG folder. The file
// is text, CR LF lines: the list's SortKey, its SortOrder, then for each column in
// display order its column number (1 "Filename" to 22 "Mode") and its width. A width
// of 0 hides the column.

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace zvx {

class Common;

inline constexpr const char* kColumnSettingExtension = ".zvl";

struct ColumnPlacement {
    int column = 0;
    // Missing when the file ends after the column number: the width is then left alone.
    std::optional<int> width;
};

struct ColumnSetting {
    int SortKey = 0;
    int SortOrder = 0;
    std::vector<ColumnPlacement> columns;  // in display order
};

// The file of the layout `name` in the CONFIG folder, both found without regard to case.
std::filesystem::path ColumnSettingFile(const Common& common, const std::string& name);

// Reads a layout. A line that is not a number reads as 0, a missing sort line as 0.
// Throws FileError when the file cannot be read.
ColumnSetting ReadColumnSetting(const std::filesystem::path& file);

// Writes the layout as a new file, replacing what stood there. Throws FileError.
void WriteColumnSetting(const std::filesystem::path& file, const ColumnSetting& setting);

}  // namespace zvx
