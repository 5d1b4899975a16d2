#pragma once
// What the benchmarks that time an operation against a shell tool share: a scratch folder
// (in /dev/shm where it exists), timing, medians, shell commands, and the catalogues whose
// folder 00000001 holds one entry in a hundred, spread over the whole file.

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace zvx {
class Common;
}

namespace zvx::bench {

// A temporary folder under `base`, removed with everything in it at the end.
class ScratchFolder {
  public:
    explicit ScratchFolder(const std::filesystem::path& base);
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

// /dev/shm where it exists, so that a flush before a rename waits for no disk (the tools
// the runs are set against wait for none); else the temporary folder.
std::filesystem::path DefaultWorkBase();

template <typename Step>
double Milliseconds(Step step) {
    const auto start = std::chrono::steady_clock::now();
    step();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

double Median(std::vector<double> times);

// Wall and processor milliseconds of one step.
struct Cost {
    double wall = 0;
    double cpu = 0;
};

// Processor milliseconds, user and system, used so far by `who` (RUSAGE_SELF or
// RUSAGE_CHILDREN).
double CpuMilliseconds(int who);

template <typename Step>
Cost Measure(int who, Step step) {
    const double before = CpuMilliseconds(who);
    const double wall = Milliseconds(step);
    return {wall, CpuMilliseconds(who) - before};
}

Cost Medians(const std::vector<Cost>& costs);

// A shell command's cost, with the processor time of its processes.
Cost ShellCost(const std::string& command);

// One operation measured against a tool at one catalogue size.
struct Timing {
    std::string name;
    uint64_t entries = 0;
    Cost tool;
    Cost own;
    double target = 0;  // the highest processor-time ratio allowed
    double ratio() const { return own.cpu / tool.cpu; }
};

// The frame of a benchmark against a tool: `measure` gets a common module over a scratch
// folder (the program's one argument, FOLDER, or DefaultWorkBase()) and gathers the
// timings; they are reported, and the exit status is 1 when a timing at 1,000,000 entries
// misses its target (or the run failed), 2 for wrong use.
int RunComparison(const char* program, int argc, char** argv,
                  const std::function<void(Common&, const std::filesystem::path& work,
                                           std::vector<Timing>& timings)>& measure);

// The table of timings: times and ratios, the processor time an entry, and its growth
// from the smaller catalogue of the same operation, so that a cost growing faster than
// the file shows.
void Report(const std::vector<Timing>& timings);

std::string ShellQuoted(const std::string& text);

// Runs `command` by the shell with LC_ALL=C; throws when its exit status is not 0.
void RunShell(const std::string& command);

// The folder that holds every hundredth entry of a SparseFolderCatalogue, and the one that
// holds the entries it had from the generator.
inline constexpr const char* kSparseFolderId = "00000001";
inline constexpr const char* kOtherFolderId = "00000002";

// A generated catalogue of `entries` entries over entries / 500 folders whose folder
// kSparseFolderId holds every hundredth entry and no other. Made once into `folder` as
// locked_Nk.zvx and reused afterwards (the locked-apply benchmark makes the same files).
std::filesystem::path SparseFolderCatalogue(const std::filesystem::path& folder, uint64_t entries);

// The entry lines of the folder, in file order.
std::vector<std::string> FolderRows(const std::filesystem::path& catalogue,
                                    const std::string& folderId);

}  // namespace zvx::bench
