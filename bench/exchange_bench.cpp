// exchange_bench [FOLDER]
//
// Times the exchange over catalogues of 100,000 entries in 2,000 folders and 1,000,000
// entries in 20,000 folders: one run of the export dialog in mode "optimize" (the entry
// offset set, the TOC cut down to the folders used and their ancestors, the entries
// copied) against `cp` of the catalogue, and the import's merge of a second such
// catalogue into the first against `cp` of both. The catalogues are made once into the
// build folder (exchange_*.zvx); the runs write into FOLDER (by default /dev/shm where it
// exists). Nine rounds of each pair interleave; the medians of wall and processor time
// (of cp's processes or of this one) are printed with their ratios and the cost an
// entry, so that a run growing faster than the files shows. Exits with 1 when, at
// 1,000,000 entries, either takes more processor time than 3 times cp.

#include <sys/resource.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "bench_support.h"
#include "catalogue_generator.h"
#include "common/common.h"
#include "exchange/export_prep.h"
#include "exchange/export_toc.h"
#include "exchange/merge.h"
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
constexpr double kTarget = 3.0;

// The catalogue of `entries` entries in entries / 50 folders; the seed tells the two of
// an import apart.
fs::path CatalogueOf(uint64_t entries, uint64_t seed) {
    const fs::path file = fs::path(ZVX_BENCH_FOLDER) / ("exchange_" + std::to_string(entries) +
                                                        "_" + std::to_string(seed) + ".zvx");
    if (!fs::exists(file))
        zvx::bench::GenerateCatalogue(file,
                                      {.entries = entries, .folders = entries / 50, .seed = seed});
    return file;
}

std::string Cp(const fs::path& from, const fs::path& to) {
    return "cp " + ShellQuoted(from.string()) + " " + ShellQuoted(to.string());
}

Timing TimeOptimize(zvx::Common& common, const fs::path& catalogue, uint64_t entries,
                    const fs::path& work) {
    const fs::path file = work / zvx::kExportFileName;
    std::vector<Cost> tool, own;
    for (int round = 0; round < kRounds; ++round) {
        tool.push_back(ShellCost(Cp(catalogue, work / "copy.zvx")));
        own.push_back(Measure(RUSAGE_SELF, [&] {
            zvx::ApplyExportToc(common, file, catalogue, zvx::ExportTocMode::Optimize, "");
        }));
    }
    return {"export optimize", entries, Medians(tool), Medians(own), kTarget};
}

Timing TimeImport(zvx::Common& common, const fs::path& target, const fs::path& source,
                  uint64_t entries, const fs::path& work) {
    const fs::path merged = work / "target.zvx";
    const fs::path imported = work / "imported.tmp";
    const std::string cp = Cp(target, work / "a.zvx") + " && " + Cp(source, work / "b.zvx");
    std::vector<Cost> tool, own;
    for (int round = 0; round < kRounds; ++round) {
        tool.push_back(ShellCost(cp));
        zvx::CopyFileBytes(target, merged);
        zvx::CopyFileBytes(source, imported);
        own.push_back(
            Measure(RUSAGE_SELF, [&] { zvx::MergeCatalogue(common, merged, imported, ""); }));
    }
    return {"import merge", entries, Medians(tool), Medians(own), kTarget};
}

}  // namespace

int main(int argc, char** argv) {
    return zvx::bench::RunComparison(
        "exchange_bench", argc, argv,
        [](zvx::Common& common, const fs::path& work, std::vector<Timing>& timings) {
            for (uint64_t entries : {100000ULL, 1000000ULL}) {
                const fs::path first = CatalogueOf(entries, 1);
                const fs::path second = CatalogueOf(entries, 2);
                timings.push_back(TimeOptimize(common, first, entries, work));
                timings.push_back(TimeImport(common, first, second, entries, work));
            }
        });
}
