#pragma once
// The private folder for this process's temporary files. Removed with everything in it
// when the object goes, on error paths too, so that no run leaves files behind and no
// run touches another's. The run holds the folder's lock file for its whole life, so
// that a folder whose run was killed can be told from a live one: making a work folder
// first clears those that dead runs left.

#include <filesystem>

#include "platform/held_file.h"

namespace zvx::cat {

// The lock file inside each work folder.
inline constexpr const char* kWorkFolderLock = "zvxcat.lock";

class WorkFolder {
  public:
    // Throws ToolFailure when no folder can be made.
    WorkFolder();
    ~WorkFolder();
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
    FileHold hold_;
};

}  // namespace zvx::cat
