#include "shell/config_files.h"

#include <initializer_list>
#include <system_error>
#include <utility>

#include "common/app_files.h"
#include "common/common.h"
#include "extensions/filter_declarations.h"
#include "platform/file_error.h"
#include "platform/file_io.h"
#include "store/column_setting_file.h"

namespace zvx {

namespace {

ColumnSetting Layout(std::initializer_list<std::pair<int, int>> pairs) {
    ColumnSetting setting;
    for (const auto& [column, width] : pairs)
        setting.columns.push_back({column, width});
    return setting;
}

// Every column, in the order and width a new document shows them.
ColumnSetting DefaultLayout() {
    return Layout({{1, 215},  {2, 96},   {3, 196}, {4, 74},  {7, 80},  {5, 65},  {8, 80},  {6, 96},
                   {18, 104}, {10, 104}, {15, 41}, {9, 104}, {11, 96}, {12, 76}, {13, 76}, {14, 65},
                   {16, 38},  {17, 93},  {19, 50}, {20, 80}, {21, 89}, {22, 80}});
}

// Track, Artist, Title, Length, Album and Year; every other column hidden.
ColumnSetting AudioShortLayout() {
    return Layout({{15, 40}, {10, 200}, {9, 200}, {19, 50}, {11, 160}, {16, 38}, {2, 0}, {1, 0},
                   {3, 0},   {17, 0},   {4, 0},   {7, 0},   {5, 0},    {8, 0},   {6, 0}, {18, 0},
                   {12, 0},  {13, 0},   {14, 0},  {20, 0},  {21, 0},   {22, 0}});
}

void WriteIfMissing(const Common& common, const std::string& name, const ColumnSetting& layout) {
    std::filesystem::path file = ColumnSettingFile(common, name);
    std::error_code ec;
    if (std::filesystem::exists(file, ec) || ec)
        return;
    try {
        WriteColumnSetting(file, layout);
    } catch (const FileError&) {
        // A missing default layout only leaves the list in its built-in order.
    }
}

}  // namespace

void PrepareConfigFiles(const Common& common) {
    std::error_code ec;
    for (const char* folder : {kConfigFolder, kPluginsFolder})
        std::filesystem::create_directory(FindInFolder(common.applicationFolder(), folder), ec);
    WriteIfMissing(common, "Default", DefaultLayout());
    WriteIfMissing(common, "Audio-Short", AudioShortLayout());
}

void PrepareFilterDeclarations(const Common& common, const std::filesystem::path& programFolder) {
    std::error_code ec;
    const std::filesystem::path program = programFolder / kFilterProgramName;
    if (!std::filesystem::is_regular_file(program, ec))
        return;
    const std::filesystem::path plugins = FindInFolder(common.applicationFolder(), kPluginsFolder);
    for (const FilterDeclarationFile& declaration :
         BuiltInFilterDeclarations(std::filesystem::absolute(program, ec))) {
        const std::filesystem::path file = FindInFolder(plugins, declaration.fileName);
        if (std::filesystem::exists(file, ec) || ec)
            continue;
        try {
            WriteFileBytes(file, 0, declaration.text);
        } catch (const FileError&) {
            // A declaration that cannot be written leaves only its filter unlisted.
        }
    }
}

}  // namespace zvx
