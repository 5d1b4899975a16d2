#pragma once
// The lock file PLUGINS/extlock.tmp: an extension that the host waits for creates it when
// it has finished. Only its existence means something. The host clears it before each
// start; every failure to make, delete or open it is passed over, since a missing PLUGINS
// folder means there is nothing to wait for.

#include <filesystem>

namespace zvx {

class Common;

inline constexpr const char* kLockFileName = "extlock.tmp";

std::filesystem::path LockFilePath(const Common& common);
// Creates the file if it is missing, then deletes it.
void ClearLockFile(const Common& common);
void CreateLockFile(const Common& common);
// Whether the file can be opened for reading (PLUGHALT's test).
bool LockFileExists(const Common& common);

}  // namespace zvx
