#include "extensions/extension_files.h"

#include <system_error>

#include "common/app_files.h"
#include "common/common.h"
#include "common/text_case.h"
#include "platform/directory_walk.h"

namespace zvx {

std::filesystem::path PluginsFolder(const Common& common) {
    return FindInFolder(common.applicationFolder(), kPluginsFolder);
}

std::vector<std::string> DeclarationFiles(const Common& common, std::string_view pattern) {
    const std::filesystem::path folder = PluginsFolder(common);
    std::error_code ec;
    if (!std::filesystem::is_directory(folder, ec))
        return {};
    return ListDirectory(folder, DeviceOf(folder), pattern).files;
}

std::string DeclarationKey(std::string_view prefix, std::string_view fileName) {
    return std::string(prefix) + UpperCase(fileName);
}

}  // namespace zvx
