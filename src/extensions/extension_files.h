#pragma once
// The declaration files of the PLUGINS folder, as the scans take them: the plain names of
// the regular files (a link to one included) that match a pattern without regard to case,
// so that "TAGGER.ZVP" and "tagger.zvp" are both plug-ins, sorted by the bytes of the
// names as the directory gives them.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace zvx {

class Common;

inline constexpr const char* kPlugInPattern = "*.zvp";
inline constexpr const char* kAddOnPattern = "*.zva";
inline constexpr const char* kImportFilterPattern = "*.zvi";
inline constexpr const char* kExportFilterPattern = "*.zve";

// Per-declaration settings: the prefix and the upper-cased file name, "YES" or "NO".
inline constexpr const char* kPlugInDisableKey = "PLUGINDISABLE";
inline constexpr const char* kAddOnDisableKey = "ADDONDISABLE";
inline constexpr const char* kAddOnShortcutKey = "ADDONSHORTCUT";

// The PLUGINS folder of the application folder, found without regard to case.
std::filesystem::path PluginsFolder(const Common& common);

// The names in name order; none when the folder is missing. Throws FileError when the
// folder exists but cannot be listed.
std::vector<std::string> DeclarationFiles(const Common& common, std::string_view pattern);

// The key of a per-declaration setting: the prefix and the upper-cased file name.
std::string DeclarationKey(std::string_view prefix, std::string_view fileName);

}  // namespace zvx
