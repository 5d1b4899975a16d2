#pragma once
// What every command runs in: the application folder (zvx.ini, CONFIG, PLUGINS), a
// private work folder for the temporary files, and the common module over both.

#include <filesystem>

#include "common/common.h"
#include "work_folder.h"

namespace zvx::cat {

class ToolSession {
  public:
    // Resolves and creates the application folder and makes the work folder. Throws
    // ToolFailure when the application folder is the root folder or cannot be made.
    explicit ToolSession(Screen& screen);

    Common& common() { return common_; }

  private:
    std::filesystem::path appFolder_;
    WorkFolder workFolder_;
    Common common_;
};

}  // namespace zvx::cat
