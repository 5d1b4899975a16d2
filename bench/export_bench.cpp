// export_bench [FOLDER]
//
// Times one run of the export dialog in mode "optimize" (the untouched copy taken back,
// the entry offset set, the TOC cut down to the folders used and their ancestors, the
// entries copied) over a catalogue of 1,000,000 entries in 20,000 folders, against `cp`
// of the same catalogue. The catalogue is made once into the build folder as
// export_1m.zvx; the runs write into FOLDER (by default /dev/shm where it exists). Nine
// rounds of each interleave; the medians of wall and processor time (user and system, of
// cp's process or of this one) are printed with their ratios. Exits with 1 when the
// export takes more processor time than 3 times cp.

#include <sys/resource.h>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include "bench_support.h"
#include "catalogue_generator.h"
#include "common/common.h"
#include "exchange/export_prep.h"
#include "exchange/export_toc.h"
#include "platform/file_io.h"
#include "quiet_screen.h"

namespace {

namespace fs = std::filesystem;
using zvx::bench::Median;
using zvx::bench::Milliseconds;
using zvx::bench::ShellQuoted;

constexpr int kRounds = 9;
constexpr double kTarget = 3.0;
constexpr uint64_t kEntries = 1000000;
constexpr uint64_t kFolders = 20000;

double CpuMs(int who) {
    rusage usage{};
    getrusage(who, &usage);
    auto ms = [](const timeval& t) { return t.tv_sec * 1e3 + t.tv_usec / 1e3; };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

struct Cost {
    std::vector<double> wall, cpu;
    template <typename Step>
    void add(int who, Step step) {
        const double before = CpuMs(who);
        wall.push_back(Milliseconds(step));
        cpu.push_back(CpuMs(who) - before);
    }
};

fs::path Catalogue() {
    const fs::path file = fs::path(ZVX_BENCH_FOLDER) / "export_1m.zvx";
    if (!fs::exists(file))
        zvx::bench::GenerateCatalogue(file, {.entries = kEntries, .folders = kFolders});
    return file;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 2) {
        std::fprintf(stderr, "usage: export_bench [FOLDER]\n");
        return 2;
    }
    try {
        const zvx::bench::ScratchFolder scratch(argc == 2 ? fs::path(argv[1])
                                                          : zvx::bench::DefaultWorkBase());
        zvx::bench::QuietScreen screen;
        zvx::Common common(scratch.path(), scratch.path(), screen);
        const fs::path catalogue = Catalogue();
        const fs::path file = scratch.path() / zvx::kExportFileName;
        zvx::CopyFileBytes(catalogue, file);
        const fs::path backup = zvx::TakeExportBackup(common, file);
        const std::string cp = "cp " + ShellQuoted(catalogue.string()) + " " +
                               ShellQuoted((scratch.path() / "copy.zvx").string());
        Cost tool, own;
        for (int round = 0; round < kRounds; ++round) {
            tool.add(RUSAGE_CHILDREN, [&] { zvx::bench::RunShell(cp); });
            own.add(RUSAGE_SELF, [&] {
                zvx::ApplyExportToc(common, file, backup, zvx::ExportTocMode::Optimize, "");
            });
        }
        const double ratio = Median(own.cpu) / Median(tool.cpu);
        std::printf("optimize of %llu entries in %llu folders: %llu of %llu bytes kept\n",
                    static_cast<unsigned long long>(kEntries),
                    static_cast<unsigned long long>(kFolders),
                    static_cast<unsigned long long>(zvx::FileLength(file)),
                    static_cast<unsigned long long>(zvx::FileLength(catalogue)));
        std::printf("wall: cp %.1f ms, export %.1f ms, ratio %.2f\n", Median(tool.wall),
                    Median(own.wall), Median(own.wall) / Median(tool.wall));
        std::printf("cpu:  cp %.1f ms, export %.1f ms, ratio %.2f (target <= %.1f)\n",
                    Median(tool.cpu), Median(own.cpu), ratio, kTarget);
        return ratio > kTarget ? 1 : 0;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "export_bench: %s\n", e.what());
        return 1;
    }
}
