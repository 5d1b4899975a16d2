#pragma once
// Where the program keeps zvx.ini, CONFIG, PLUGINS and its temporary files.

#include <filesystem>
#include <string>

namespace zvx {

struct FolderEnvironment {
    std::string zvxHome;      // ZVX_HOME
    std::string xdgDataHome;  // XDG_DATA_HOME
    std::string home;         // HOME
    std::filesystem::path programFolder;
};

FolderEnvironment CurrentFolderEnvironment(const std::filesystem::path& programFolder);

// ZVX_HOME when set; otherwise the program's own folder if it holds a zvx.ini (a
// portable install); otherwise $XDG_DATA_HOME/zvx, by default ~/.local/share/zvx.
std::filesystem::path ResolveApplicationFolder(const FolderEnvironment& env);

// Creates the folder (and its parents) if missing; false when that fails.
bool EnsureFolder(const std::filesystem::path& folder);

// A fresh private folder for one process's temporary files.
std::filesystem::path MakePrivateWorkFolder();

}  // namespace zvx
