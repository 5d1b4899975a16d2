#pragma once
// Fixed names inside the application folder, and the case-blind lookup of them.
// Windows spells the folders "Config", "config", "plugins" ...: all mean the same.

#include <filesystem>
#include <string>

namespace zvx {

inline constexpr const char* kIniFileName = "zvx.ini";
inline constexpr const char* kConfigFolder = "CONFIG";
inline constexpr const char* kPluginsFolder = "PLUGINS";

// The entry of `folder` whose name equals `name` without regard to case; the exact
// name when none exists yet (so that it is created with the system's spelling).
std::filesystem::path FindInFolder(const std::filesystem::path& folder, const std::string& name);

}  // namespace zvx
