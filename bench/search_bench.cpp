// search_bench [FOLDER]
//
// Times the search's filter loop (SelFiltering, "Contains" without regard to case) over
// catalogues of 100,000 and 1,000,000 entries against `grep -c` of the same word on the
// same file: the scan over the fields ("<ANYTHING>") and a chosen field, each with a word
// of few hits and one of many, and the scan for a word that six entries in ten hold.
// Then the split preparation of a sub-tree (SearchInit in split mode for the root
// "Photos", about a quarter of the entries) against `cp` of the catalogue. The
// catalogues are the listing benchmark's (listing_1m.zvx, listing_100k.zvx in the build
// folder), made once; the runs write into FOLDER (by default /dev/shm where it exists).
// Nine rounds of each pair interleave; the medians of wall time and of processor time
// (user and system, of the tool's process or of this one) are printed with their ratios
// and the cost an entry, so that a run growing faster than the file shows. On a machine
// shared with other work the wall times move with its load, the processor times much
// less. Exits with 1 when, at 1,000,000 entries, a filter takes more processor time than
// 1.5 times grep or the split more than twice cp.

#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include "bench_support.h"
#include "catalogue_generator.h"
#include "common/common.h"
#include "finding/search_filter.h"
#include "finding/search_preparation.h"
#include "platform/file_io.h"
#include "quiet_screen.h"

namespace {

namespace fs = std::filesystem;
using zvx::bench::Median;
using zvx::bench::Milliseconds;
using zvx::bench::ShellQuoted;

constexpr int kRounds = 9;
constexpr double kFilterTarget = 1.5;
constexpr double kSplitTarget = 2.0;

struct FilterCase {
    const char* name;
    int field;
    const char* word;
};
// IMG_4321 names a few photos; Summer stands in many titles and albums; Kestrel is the
// second name of one artist in sixteen; mp3 ends the name of six entries in ten.
constexpr FilterCase kFilterCases[] = {{"scan, few hits", 0, "IMG_4321"},
                                       {"scan, many hits", 0, "Summer"},
                                       {"scan, most entries", 0, "mp3"},
                                       {"Filename, few hits", 1, "IMG_4321"},
                                       {"Artist, many hits", 10, "Kestrel"}};

// Wall and processor milliseconds of one step.
struct Cost {
    double wall = 0;
    double cpu = 0;
};

struct Timing {
    std::string name;
    uint64_t entries = 0;
    Cost tool;
    Cost own;
    double target = 0;
    double ratio() const { return own.cpu / tool.cpu; }
};

double CpuMs(int who) {
    rusage usage{};
    getrusage(who, &usage);
    auto ms = [](const timeval& t) { return t.tv_sec * 1e3 + t.tv_usec / 1e3; };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

template <typename Step>
Cost Measure(int who, Step step) {
    const double before = CpuMs(who);
    const double wall = Milliseconds(step);
    return {wall, CpuMs(who) - before};
}

Cost Medians(const std::vector<Cost>& costs) {
    std::vector<double> wall, cpu;
    for (const Cost& c : costs) {
        wall.push_back(c.wall);
        cpu.push_back(c.cpu);
    }
    return {Median(wall), Median(cpu)};
}

fs::path CatalogueOf(uint64_t entries) {
    const fs::path file =
        fs::path(ZVX_BENCH_FOLDER) / (entries == 1000000 ? "listing_1m.zvx" : "listing_100k.zvx");
    if (!fs::exists(file))
        zvx::bench::GenerateCatalogue(file, {.entries = entries, .folders = entries / 500});
    return file;
}

Cost ShellCost(const std::string& command) {
    return Measure(RUSAGE_CHILDREN, [&] { zvx::bench::RunShell(command); });
}

// grep writes to a real file: given /dev/null as its output it stops at the first match.
Timing TimeFilter(zvx::Common& common, const fs::path& catalogue, uint64_t entries,
                  const FilterCase& c, const fs::path& work) {
    const fs::path result = work / "sresult.tmp";
    const std::string grep = "grep -c -a " + ShellQuoted(c.word) + " " +
                             ShellQuoted(catalogue.string()) + " > " +
                             ShellQuoted((work / "grep.out").string());
    const zvx::SearchSettings settings{c.field, 1, zvx::WordMode::ExactPhrase, false, c.word};
    std::vector<Cost> tool, own;
    size_t found = 0;
    for (int round = 0; round < kRounds; ++round) {
        tool.push_back(ShellCost(grep));
        zvx::WriteEmptyFile(result);
        own.push_back(Measure(RUSAGE_SELF, [&] {
            found = zvx::SelFiltering(common, catalogue, result, settings, false, nullptr);
        }));
    }
    std::printf("  %-20s %7zu found, grep counts %s", c.name, found,
                zvx::ReadFileBytes(work / "grep.out", 0, 32).c_str());
    return {c.name, entries, Medians(tool), Medians(own), kFilterTarget};
}

Timing TimeSplit(zvx::Common& common, const fs::path& catalogue, uint64_t entries,
                 const fs::path& work) {
    const std::string cp =
        "cp " + ShellQuoted(catalogue.string()) + " " + ShellQuoted((work / "copy.zvx").string());
    std::vector<Cost> tool, own;
    for (int round = 0; round < kRounds; ++round) {
        tool.push_back(ShellCost(cp));
        own.push_back(Measure(RUSAGE_SELF, [&] {
            zvx::SearchInit(common, catalogue, true, zvx::SearchFolder{"Photos", "00000001"});
        }));
    }
    std::printf("  split of Photos: %llu of %llu bytes in the sub-tree\n",
                static_cast<unsigned long long>(zvx::FileLength(work / zvx::kSearchTreeFile)),
                static_cast<unsigned long long>(zvx::FileLength(catalogue)));
    return {"split preparation", entries, Medians(tool), Medians(own), kSplitTarget};
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

}  // namespace

int main(int argc, char** argv) {
    if (argc > 2) {
        std::fprintf(stderr, "usage: search_bench [FOLDER]\n");
        return 2;
    }
    try {
        const zvx::bench::ScratchFolder scratch(argc == 2 ? fs::path(argv[1])
                                                          : zvx::bench::DefaultWorkBase());
        zvx::bench::QuietScreen screen;
        zvx::Common common(scratch.path(), scratch.path(), screen);
        std::vector<Timing> timings;
        for (uint64_t entries : {100000ULL, 1000000ULL}) {
            const fs::path catalogue = CatalogueOf(entries);
            zvx::bench::RunShell("cat " + ShellQuoted(catalogue.string()) + " > /dev/null");
            std::printf("%llu entries:\n", static_cast<unsigned long long>(entries));
            for (const FilterCase& c : kFilterCases)
                timings.push_back(TimeFilter(common, catalogue, entries, c, scratch.path()));
            timings.push_back(TimeSplit(common, catalogue, entries, scratch.path()));
        }
        Report(timings);
        for (const Timing& t : timings) {
            if (t.entries == 1000000 && t.ratio() > t.target)
                return 1;
        }
        return 0;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "search_bench: %s\n", e.what());
        return 1;
    }
}
