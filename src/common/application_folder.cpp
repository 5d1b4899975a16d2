#include "common/application_folder.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <system_error>

#include "common/app_files.h"

namespace zvx {

namespace {
std::string Env(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

// HOME, or the user's home from the password database when HOME is unset.
std::string HomeFolder() {
    std::string home = Env("HOME");
    if (!home.empty())
        return home;
    if (const passwd* pw = getpwuid(getuid()); pw && pw->pw_dir)
        return pw->pw_dir;
    return "/";
}
}  // namespace

FolderEnvironment CurrentFolderEnvironment(const std::filesystem::path& programFolder) {
    return {Env("ZVX_HOME"), Env("XDG_DATA_HOME"), HomeFolder(), programFolder};
}

std::filesystem::path ResolveApplicationFolder(const FolderEnvironment& env) {
    if (!env.zvxHome.empty())
        return std::filesystem::absolute(env.zvxHome);
    std::error_code ec;
    if (!env.programFolder.empty() &&
        std::filesystem::is_regular_file(FindInFolder(env.programFolder, kIniFileName), ec))
        return env.programFolder;
    // A relative XDG_DATA_HOME is invalid and ignored, as the base-directory rules say.
    if (!env.xdgDataHome.empty() && env.xdgDataHome.front() == '/')
        return std::filesystem::path(env.xdgDataHome) / "zvx";
    return std::filesystem::path(env.home) / ".local" / "share" / "zvx";
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
