#pragma once
// An external export or import filter run outside the window program, as zvxcat runs
// one: found by its name, started in a folder of its own that stands in for the
// application folder, told its file by ZVX_FILTER_TARGET, and waited for until it ends.

#include <filesystem>
#include <optional>
#include <string>

#include "extensions/filter_scan.h"

namespace zvx {

class Common;

// The declaration file of the filter of this name (as the dialogs list it), the
// built-in filter's file for the built-in name; none for an unknown name.
std::optional<std::string> FilterFileNamed(const Common& common, FilterKind kind,
                                           const std::string& name);

// Runs the filter of the declaration file with `home` (holding PLUGINS/export.tmp for
// an export, taking PLUGINS/imported.tmp from an import) as its ZVX_HOME and working
// folder, `target` as ZVX_FILTER_TARGET, after the hand-over files for the event
// ("export", "import") with no document. Returns the filter's exit status, -1 when it
// ended otherwise. Throws FileError when it cannot be started.
int RunFilterProgram(const Common& common, const std::string& filterFile,
                     const std::string& eventName, const std::filesystem::path& home,
                     const std::filesystem::path& target);

// PLUGINS of `home`, made if missing.
std::filesystem::path FilterPluginsFolder(const std::filesystem::path& home);

}  // namespace zvx
