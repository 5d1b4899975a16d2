#pragma once
// The private folder for this process's temporary files. Removed with everything in it
// when the object goes, on error paths too, so that no run leaves files behind and no
// run touches another's.

#include <filesystem>

namespace zvx::cat {

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
};

}  // namespace zvx::cat
