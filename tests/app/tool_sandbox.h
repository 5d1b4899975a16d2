#pragma once
// Runs the built zvxcat in a folder of its own: a working folder, and the application,
// home, data, configuration and temporary folders all inside one temporary folder, so
// that a run never sees the real home folder.

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "support/temp_folder.h"

namespace zvx::test {

struct ToolResult {
    int status = -1;  // exit status, -1 when the process did not exit normally
    std::string out;
    std::string err;
};

class ToolSandbox {
  public:
    ToolSandbox();

    // Runs zvxcat with the arguments in the working folder, stdin from /dev/null.
    ToolResult run(const std::vector<std::string>& args) const;
    // Starts zvxcat in the working folder with the descriptors as its stdin, stdout and
    // stderr; the process ID, or -1.
    pid_t start(std::vector<std::string> args, int in, int out, int err) const;

    // A file in the working folder.
    std::filesystem::path operator/(const std::string& name) const { return work_ / name; }
    std::filesystem::path appFolder() const { return root_ / "app"; }
    std::filesystem::path dataFolder() const { return root_ / "data"; }
    // TMPDIR of the process: where its private work folder goes.
    std::filesystem::path tmpFolder() const { return root_ / "tmp"; }

    // ZVX_HOME of the process; empty leaves it unset.
    std::string zvxHome;
    // The size no file of the process may grow beyond, as on a disk that is full there
    // (a write past it fails with EFBIG); 0 for no limit.
    uint64_t fileSizeLimit = 0;

  private:
    TempFolder root_;
    std::filesystem::path work_;
};

// The exit status of a started process, -1 when it did not exit normally.
int WaitForExit(pid_t pid);

}  // namespace zvx::test
