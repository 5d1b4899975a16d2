#include "extensions/lock_file.h"

#include <fstream>
#include <system_error>

#include "common/app_files.h"
#include "extensions/extension_files.h"

namespace zvx {

std::filesystem::path LockFilePath(const Common& common) {
    return FindInFolder(PluginsFolder(common), kLockFileName);
}

void ClearLockFile(const Common& common) {
    CreateLockFile(common);
    std::error_code ec;
    std::filesystem::remove(LockFilePath(common), ec);
}

void CreateLockFile(const Common& common) {
    std::ofstream(LockFilePath(common), std::ios::app);
}

bool LockFileExists(const Common& common) {
    return std::ifstream(LockFilePath(common)).is_open();
}

}  // namespace zvx
