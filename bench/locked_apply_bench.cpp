// locked_apply_bench [FOLDER]
//
// Times a locked album (with the type "Audio: Album") applied to a whole folder, as the entry
// editor's Command11 and the final apply do it (ApplyLockedSelection over the folder's rows, then
// FinalApply), in catalogues of 100,000 and 1,000,000 entries whose folder "00000001" holds one
// entry in a hundred, spread over the whole file: 1,000 and 10,000 rows. Each is set against `cp`
// of the catalogue. The listing that makes the rows is the window's and is not timed.
// The catalogues are generated once into the build folder; the runs work on copies in
// FOLDER (by default /dev/shm where it exists, so that the flush of the crash-safe
// replacement measures no disk, as `cp` waits for none). The medians of nine rounds are
// printed with the cost an entry for each size, so that a run growing faster than the
// catalogue shows. Exits with 1 when the 1,000,000-entry run takes more than twice `cp`,
// or when a run did not change every row.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench_support.h"
#include "common/common.h"
#include "document/editor_apply.h"
#include "platform/file_io.h"
#include "quiet_screen.h"
#include "store/entry_line.h"

namespace {

namespace fs = std::filesystem;
using zvx::bench::Median;
using zvx::bench::Milliseconds;
using zvx::bench::ShellQuoted;

constexpr double kTarget = 2.0;
constexpr int kRounds = 9;
constexpr const char* kAlbum = "Locked Album";

std::vector<std::string> FolderRows(const fs::path& cfn) {
    return zvx::bench::FolderRows(cfn, zvx::bench::kSparseFolderId);
}

void ApplyLockedAlbum(zvx::Common& common, const fs::path& cfn,
                      const std::vector<std::string>& rows) {
    // A type that is no audio would clear the album again, so the type is locked too.
    zvx::EditorForm form;
    form.texts[8] = "Audio: Album";
    form.locks[8] = true;
    form.texts[11] = kAlbum;
    form.locks[11] = true;
    const std::vector<std::string_view> views(rows.begin(), rows.end());
    zvx::ChangeBuffers buffers;
    zvx::ApplyLockedSelection(common, buffers, views, form, 1);
    zvx::FinalApply(common, cfn, buffers);
}

uint64_t RowsWithTheAlbum(const fs::path& cfn) {
    const std::vector<std::string> rows = FolderRows(cfn);
    return static_cast<uint64_t>(std::ranges::count_if(
        rows, [](const std::string& row) { return zvx::SplitEntryLine(row)[11] == kAlbum; }));
}

struct Measurement {
    uint64_t entries = 0;
    uint64_t rows = 0;
    double cpMs = 0;
    double applyMs = 0;
};

// Rounds of cp and of the apply on a fresh copy, interleaved so that a load on the
// machine that comes and goes weighs on both alike.
Measurement Measure(const fs::path& catalogue, uint64_t entries, const fs::path& work) {
    zvx::bench::QuietScreen screen;
    zvx::Common common(work, work, screen);
    const fs::path cfn = work / "Document 1.tmp";
    const std::string cp =
        "cp " + ShellQuoted(catalogue.string()) + " " + ShellQuoted((work / "copy.zvx").string());
    std::vector<double> cpTimes, applyTimes;
    Measurement m{entries, 0, 0, 0};
    for (int round = 0; round < kRounds; ++round) {
        zvx::CopyFileBytes(catalogue, cfn);
        const std::vector<std::string> rows = FolderRows(cfn);
        cpTimes.push_back(Milliseconds([&] {
            if (std::system(cp.c_str()) != 0)
                throw std::runtime_error("cp failed");
        }));
        applyTimes.push_back(Milliseconds([&] { ApplyLockedAlbum(common, cfn, rows); }));
        if (RowsWithTheAlbum(cfn) != rows.size())
            throw std::runtime_error("the locked album did not reach every row");
        m.rows = rows.size();
    }
    m.cpMs = Median(cpTimes);
    m.applyMs = Median(applyTimes);
    return m;
}

void Report(const Measurement& m) {
    std::printf("%llu entries, %llu rows in the folder\n",
                static_cast<unsigned long long>(m.entries),
                static_cast<unsigned long long>(m.rows));
    std::printf("  cp:           %9.1f ms\n", m.cpMs);
    std::printf("  locked apply: %9.1f ms  %6.3f us an entry  ratio %5.2f (target <= %.0f)\n",
                m.applyMs, 1000 * m.applyMs / static_cast<double>(m.entries), m.applyMs / m.cpMs,
                kTarget);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 2) {
        std::fprintf(stderr, "usage: locked_apply_bench [FOLDER]\n");
        return 2;
    }
    try {
        zvx::bench::ScratchFolder scratch(argc == 2 ? fs::path(argv[1])
                                                    : zvx::bench::DefaultWorkBase());
        std::vector<Measurement> all;
        for (uint64_t entries : {100000ULL, 1000000ULL}) {
            all.push_back(Measure(zvx::bench::SparseFolderCatalogue(ZVX_BENCH_FOLDER, entries),
                                  entries, scratch.path()));
            Report(all.back());
        }
        const Measurement& small = all.front();
        const Measurement& large = all.back();
        std::printf("cost an entry, %llu entries against %llu: x%.2f\n",
                    static_cast<unsigned long long>(large.entries),
                    static_cast<unsigned long long>(small.entries),
                    (large.applyMs / large.entries) / (small.applyMs / small.entries));
        return large.applyMs / large.cpMs <= kTarget ? 0 : 1;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "locked_apply_bench: %s\n", e.what());
        return 1;
    }
}
