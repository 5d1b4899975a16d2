#pragma once
// Starting an external program of its own, without a shell, and without waiting for it.
// The programs started are reaped as they end, so that none stays behind as a zombie.

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace zvx {

class ProgramStarts {
  public:
    ProgramStarts() = default;
    ~ProgramStarts();
    ProgramStarts(const ProgramStarts&) = delete;
    ProgramStarts& operator=(const ProgramStarts&) = delete;

    // Starts arguments[0] with the arguments, in `workingFolder`, with the process's
    // environment and the variables of `environment` added. Returns its process ID.
    // Throws FileError when the program cannot be started (53 when it is missing, 70
    // when it may not be run).
    int start(const std::vector<std::string>& arguments, const std::filesystem::path& workingFolder,
              const std::vector<std::pair<std::string, std::string>>& environment);

    // Waits until the program of this process ID has ended; its exit status, or -1 when
    // it ended by a signal or is not one of ours.
    int waitForExit(int pid);

  private:
    void reapEnded();

    std::vector<int> started_;
};

}  // namespace zvx
