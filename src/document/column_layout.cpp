#include "document/column_layout.h"

#include <algorithm>
#include <numeric>
#include <system_error>

#include "common/app_files.h"
#include "common/common.h"
#include "common/field_text.h"
#include "common/file_pattern.h"
#include "common/text_case.h"
#include "platform/file_io.h"
#include "store/settings.h"

namespace zvx {

namespace {

// The search result list's column that is no entry field.
constexpr int kShiftedColumn = 2;

bool Exists(const std::filesystem::path& file) {
    std::error_code ec;
    return std::filesystem::exists(file, ec);
}

// The refusal to overwrite the default setting. It looks at the whole path of the
// file, which is never just "default", so it never comes up.
bool IsProtectedDefault(const std::filesystem::path& file) {
    return LowerCase(Trim(file.string())) == "default";
}

// Asks before an existing setting is replaced, and deletes it on Yes.
bool MayReplace(const Common& common, const std::filesystem::path& file, const std::string& name) {
    if (IsProtectedDefault(file)) {
        common.screen().message("",
                                "You are not allowed to overwrite default setting.\rPlease save "
                                "under another name and go to the options-Dialogue if you want "
                                "to make it your default-setting",
                                MsgButtons::OkOnly, MsgIcon::None);
        return false;
    }
    MsgAnswer answer = common.screen().message("", "Replace existing setting \"" + name + "\" ?",
                                               MsgButtons::YesNo, MsgIcon::None);
    if (answer != MsgAnswer::Yes) {
        common.screen().message("", "Setting has not been saved.", MsgButtons::OkOnly,
                                MsgIcon::None);
        return false;
    }
    DeleteFileIfExists(file);
    return true;
}

}  // namespace

ListLayout::ListLayout(int count, int width) : order_(count), widths_(count, width) {
    std::iota(order_.begin(), order_.end(), 1);
}

int ListLayout::Position(int column) const {
    auto at = std::find(order_.begin(), order_.end(), column);
    return at == order_.end() ? 0 : static_cast<int>(at - order_.begin()) + 1;
}

void ListLayout::setPosition(int column, int position) {
    const int from = Position(column);
    if (from == 0 || position < 1 || position > columnCount())
        return;
    order_.erase(order_.begin() + (from - 1));
    order_.insert(order_.begin() + (position - 1), column);
}

void ListLayout::setWidth(int column, int width) {
    if (column >= 1 && column <= columnCount())
        widths_[column - 1] = width;
}

void ApplyColumnSetting(ListLayout& layout, const ColumnSetting& setting, bool shift) {
    layout.sort = {setting.SortKey, setting.SortOrder};
    int position = 1;
    for (const ColumnPlacement& placement : setting.columns) {
        int column = placement.column;
        if (shift && column >= kShiftedColumn)
            ++column;
        layout.setPosition(column, position);
        if (shift && position == 1) {
            position = 2;
            layout.setPosition(kShiftedColumn, 1);
        }
        if (placement.width)
            layout.setWidth(column, *placement.width);
        ++position;
    }
}

ColumnSetting ColumnSettingOf(const ListLayout& layout, bool shift) {
    ColumnSetting setting;
    setting.SortKey = layout.sort.SortKey;
    setting.SortOrder = layout.sort.SortOrder;
    for (int position = shift ? 2 : 1; position <= layout.columnCount(); ++position) {
        const int column = layout.order()[position - 1];
        const int stored = shift && column > 1 ? column - 1 : column;
        setting.columns.push_back({stored, layout.width(column)});
    }
    return setting;
}

void LoadColumnSetting(const Common& common, ListLayout& layout, const std::string& name,
                       bool shift) {
    ApplyColumnSetting(layout, ReadColumnSetting(ColumnSettingFile(common, name)), shift);
}

bool SaveColumnSetting(const Common& common, const ListLayout& layout, const std::string& name,
                       bool shift) {
    const std::filesystem::path file = ColumnSettingFile(common, name);
    if (Exists(file) && !MayReplace(common, file, name))
        return false;
    WriteColumnSetting(file, ColumnSettingOf(layout, shift));
    return true;
}

std::string StartColumnSettingName(const Common& common) {
    std::string name = ReadSetting(common, "DEFAULTREPORTCOLUMNS", "Default").toText();
    return Exists(ColumnSettingFile(common, name)) ? name : "Default";
}

std::vector<std::string> ColumnSettingNames(const Common& common) {
    std::vector<std::string> names;
    std::error_code ec;
    const auto config = FindInFolder(common.applicationFolder(), kConfigFolder);
    for (const auto& item : std::filesystem::directory_iterator(config, ec)) {
        const std::string file = item.path().filename().string();
        if (item.is_regular_file(ec) && MatchesFilePattern(file, "*.zvl"))
            names.push_back(file.substr(0, file.size() - 4));
    }
    std::stable_sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        return UpperCase(a) < UpperCase(b);
    });
    return names;
}

}  // namespace zvx
