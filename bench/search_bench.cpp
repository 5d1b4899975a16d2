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
#include <filesystem>
#include <string>
#include <vector>

#include "bench_support.h"
#include "catalogue_generator.h"
#include "common/common.h"
#include "finding/search_filter.h"
#include "finding/search_preparation.h"
#include "platform/file_io.h"

namespace {

namespace fs = std::filesystem;
using zvx::bench::Cost;
using zvx::bench::Measure;
using zvx::bench::Medians;
using zvx::bench::ShellCost;
using zvx::bench::ShellQuoted;
using zvx::bench::Timing;

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

fs::path CatalogueOf(uint64_t entries) {
    const fs::path file =
        fs::path(ZVX_BENCH_FOLDER) / (entries == 1000000 ? "listing_1m.zvx" : "listing_100k.zvx");
    if (!fs::exists(file))
        zvx::bench::GenerateCatalogue(file, {.entries = entries, .folders = entries / 500});
    return file;
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

}  // namespace

int main(int argc, char** argv) {
    return zvx::bench::RunComparison(
        "search_bench", argc, argv,
        [](zvx::Common& common, const fs::path& work, std::vector<Timing>& timings) {
            for (uint64_t entries : {100000ULL, 1000000ULL}) {
                const fs::path catalogue = CatalogueOf(entries);
                zvx::bench::RunShell("cat " + ShellQuoted(catalogue.string()) + " > /dev/null");
                std::printf("%llu entries:\n", static_cast<unsigned long long>(entries));
                for (const FilterCase& c : kFilterCases)
                    timings.push_back(TimeFilter(common, catalogue, entries, c, work));
                timings.push_back(TimeSplit(common, catalogue, entries, work));
            }
        });
}
