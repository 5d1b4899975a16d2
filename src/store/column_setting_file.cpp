#include "store/column_setting_file.h"

#include <algorithm>
#include <climits>

#include "common/app_files.h"
#include "common/common.h"
#include "common/numeric_value.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"

namespace zvx {

namespace {

// The whole number of a line, held within the range of int.
int LineNumber(std::string_view line) {
    double value = std::clamp(NumericValue(line), double(INT_MIN), double(INT_MAX));
    return static_cast<int>(RoundHalfEven(value));
}

std::string LayoutText(const ColumnSetting& setting) {
    std::string text = std::to_string(setting.SortKey) + "\r\n";
    text += std::to_string(setting.SortOrder) + "\r\n";
    for (const ColumnPlacement& placement : setting.columns) {
        text += std::to_string(placement.column) + "\r\n";
        if (placement.width)
            text += std::to_string(*placement.width) + "\r\n";
    }
    return text;
}

}  // namespace

std::filesystem::path ColumnSettingFile(const Common& common, const std::string& name) {
    std::filesystem::path config = FindInFolder(common.applicationFolder(), kConfigFolder);
    return FindInFolder(config, name + kColumnSettingExtension);
}

ColumnSetting ReadColumnSetting(const std::filesystem::path& file) {
    ColumnSetting setting;
    LineReader reader(file);
    std::string_view line;
    if (reader.next(line))
        setting.SortKey = LineNumber(line);
    if (reader.next(line))
        setting.SortOrder = LineNumber(line);
    while (reader.next(line)) {
        ColumnPlacement placement;
        placement.column = LineNumber(line);
        if (reader.next(line))
            placement.width = LineNumber(line);
        setting.columns.push_back(placement);
    }
    return setting;
}

void WriteColumnSetting(const std::filesystem::path& file, const ColumnSetting& setting) {
    WriteEmptyFile(file);
    WriteFileBytes(file, 0, LayoutText(setting));
}

}  // namespace zvx
