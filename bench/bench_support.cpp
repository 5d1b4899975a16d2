#include "bench_support.h"

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <system_error>

#include "catalogue_generator.h"
#include "common/common.h"
#include "platform/file_io.h"
#include "quiet_screen.h"
#include "store/entry_offset.h"
#include "store/folder_listing.h"

namespace zvx::bench {

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder(const fs::path& base) {
    std::string pattern = (base / "zvx-bench-XXXXXX").string();
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("cannot make a temporary folder");
    path_ = pattern;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

fs::path DefaultWorkBase() {
    std::error_code ec;
    return fs::is_directory("/dev/shm", ec) ? fs::path("/dev/shm") : fs::temp_directory_path();
}

double Median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

std::string ShellQuoted(const std::string& text) {
    std::string quoted = "'";
    for (char c : text)
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

void RunShell(const std::string& command) {
    const std::string line = "LC_ALL=C " + command;
    if (std::system(line.c_str()) != 0)
        throw std::runtime_error("failed: " + command);
}

// The IDs keep their length, so the entry offset stays right.
fs::path SparseFolderCatalogue(const fs::path& folder, uint64_t entries) {
    const fs::path file = folder / ("locked_" + std::to_string(entries / 1000) + "k.zvx");
    if (fs::exists(file))
        return file;
    const fs::path generated = file.string() + ".generated";
    GenerateCatalogue(generated, {.entries = entries, .folders = entries / 500});
    std::string bytes = ReadFileBytes(generated, 0, FileLength(generated));
    size_t at = ReadEntryOffset(generated) - 1;
    for (uint64_t number = 0; at < bytes.size(); ++number) {
        if (number % 100 == 0)
            bytes.replace(at, 8, kSparseFolderId);
        else if (bytes.compare(at, 8, kSparseFolderId) == 0)
            bytes.replace(at, 8, kOtherFolderId);
        at = bytes.find('\n', at);
        at = at == std::string::npos ? bytes.size() : at + 1;
    }
    WriteEmptyFile(generated);
    WriteFileBytes(generated, 0, bytes);
    fs::rename(generated, file);
    return file;
}

std::vector<std::string> FolderRows(const fs::path& catalogue, const std::string& folderId) {
    std::vector<std::string> rows;
    ListFolderEntries(catalogue, folderId, [&](std::string_view line) { rows.emplace_back(line); });
    return rows;
}

double CpuMilliseconds(int who) {
    rusage usage{};
    getrusage(who, &usage);
    auto ms = [](const timeval& t) { return t.tv_sec * 1e3 + t.tv_usec / 1e3; };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

Cost Medians(const std::vector<Cost>& costs) {
    std::vector<double> wall, cpu;
    for (const Cost& c : costs) {
        wall.push_back(c.wall);
        cpu.push_back(c.cpu);
    }
    return {Median(wall), Median(cpu)};
}

Cost ShellCost(const std::string& command) {
    return Measure(RUSAGE_CHILDREN, [&] { RunShell(command); });
}

void Report(const std::vector<Timing>& timings) {
    std::printf("\n%-20s %8s | %9s %9s %6s | %9s %9s %6s | %9s %6s\n", "", "entries", "tool wall",
                "own wall", "ratio", "tool cpu", "own cpu", "ratio", "us/entry", "growth");
    for (const Timing& t : timings) {
        auto perEntry = [](const Timing& x) {
            return 1000 * x.own.cpu / static_cast<double>(x.entries);
        };
        double growth = 0;
        for (const Timing& small : timings) {
            if (small.name == t.name && small.entries < t.entries)
                growth = perEntry(t) / perEntry(small);
        }
        std::printf("%-20s %8llu | %9.1f %9.1f %6.2f | %9.1f %9.1f %6.2f | %9.4f ", t.name.c_str(),
                    static_cast<unsigned long long>(t.entries), t.tool.wall, t.own.wall,
                    t.own.wall / t.tool.wall, t.tool.cpu, t.own.cpu, t.ratio(), perEntry(t));
        if (growth > 0)
            std::printf("%6.2f  (target cpu ratio <= %.1f)\n", growth, t.target);
        else
            std::printf("%6s\n", "-");
    }
}

int RunComparison(const char* program, int argc, char** argv,
                  const std::function<void(Common&, const fs::path& work,
                                           std::vector<Timing>& timings)>& measure) {
    if (argc > 2) {
        std::fprintf(stderr, "usage: %s [FOLDER]\n", program);
        return 2;
    }
    try {
        const ScratchFolder scratch(argc == 2 ? fs::path(argv[1]) : DefaultWorkBase());
        QuietScreen screen;
        Common common(scratch.path(), scratch.path(), screen);
        std::vector<Timing> timings;
        measure(common, scratch.path(), timings);
        Report(timings);
        for (const Timing& t : timings) {
            if (t.entries == 1000000 && t.ratio() > t.target)
                return 1;
        }
        return 0;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s: %s\n", program, e.what());
        return 1;
    }
}

}  // namespace zvx::bench
