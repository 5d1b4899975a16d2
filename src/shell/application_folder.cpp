#include "shell/application_folder.h"

#include <cstdlib>
#include <string>
#include <system_error>

namespace zvx {

namespace {
std::string Env(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}
}  // namespace

FolderEnvironment CurrentFolderEnvironment(const std::filesystem::path& programFolder) {
    return {Env("ZVX_HOME"), Env("XDG_DATA_HOME"), Env("HOME"), programFolder};
}

std::filesystem::path ResolveApplicationFolder(const FolderEnvironment& env) {
    if (!env.zvxHome.empty())
        return std::filesystem::absolute(env.zvxHome);
    std::error_code ec;
    if (!env.programFolder.empty() &&
        std::filesystem::is_regular_file(env.programFolder / "zvx.ini", ec))
        return env.programFolder;
    if (!env.xdgDataHome.empty())
        return std::filesystem::path(env.xdgDataHome) / "zvx";
    return std::filesystem::path(env.home.empty() ? "." : env.home) / ".local" / "share" / "zvx";
}

bool EnsureFolder(const std::filesystem::path& folder) {
    std::error_code ec;
    std::filesystem::create_directories(folder, ec);
    return std::filesystem::is_directory(folder, ec);
}

std::filesystem::path MakePrivateWorkFolder() {
    std::error_code ec;
    std::filesystem::path base = std::filesystem::temp_directory_path(ec);
    if (ec)
        base = "/tmp";
    std::string pattern = (base / "zvxcat-XXXXXX").string();
    if (char* made = mkdtemp(pattern.data()))
        return made;
    return {};
}

}  // namespace zvx
