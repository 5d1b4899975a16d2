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

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include "catalogue_generator.h"
#include "common/common.h"
#include "document/editor_apply.h"
#include "platform/file_io.h"
#include "quiet_screen.h"
#include "store/entry_line.h"
#include "store/entry_offset.h"
#include "store/folder_listing.h"

namespace {

namespace fs = std::filesystem;

constexpr double kTarget = 2.0;
constexpr int kRounds = 9;
constexpr uint64_t kEntriesPerRow = 100;
constexpr const char* kFolderId = "00000001";
constexpr const char* kOtherId = "00000002";
constexpr const char* kAlbum = "Locked Album";

class ScratchFolder {
  public:
    explicit ScratchFolder(const fs::path& base) {
        std::string pattern = (base / "zvx-lockbench-XXXXXX").string();
        if (!mkdtemp(pattern.data()))
            throw std::runtime_error("cannot make a temporary folder");
        path_ = pattern;
    }
    ~ScratchFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    const fs::path& path() const { return path_; }

  private:
    fs::path path_;
};

template <typename Step>
double Milliseconds(Step step) {
    const auto start = std::chrono::steady_clock::now();
    step();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

std::string ShellQuoted(const std::string& text) {
    std::string quoted = "'";
    for (char c : text)
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

double Median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

// A generated catalogue in which every hundredth entry belongs to folder 00000001 and
// none other does (its own entries go to 00000002). The IDs keep their length, so the
// entry offset stays right.
fs::path CatalogueOf(uint64_t entries) {
    const fs::path file =
        fs::path(ZVX_BENCH_FOLDER) / ("locked_" + std::to_string(entries / 1000) + "k.zvx");
    if (fs::exists(file))
        return file;
    const fs::path generated = file.string() + ".generated";
    zvx::bench::GenerateCatalogue(generated, {.entries = entries, .folders = entries / 500});
    std::string bytes = zvx::ReadFileBytes(generated, 0, zvx::FileLength(generated));
    size_t at = zvx::ReadEntryOffset(generated) - 1;
    for (uint64_t number = 0; at < bytes.size(); ++number) {
        if (number % kEntriesPerRow == 0)
            bytes.replace(at, 8, kFolderId);
        else if (bytes.compare(at, 8, kFolderId) == 0)
            bytes.replace(at, 8, kOtherId);
        at = bytes.find('\n', at);
        at = at == std::string::npos ? bytes.size() : at + 1;
    }
    zvx::WriteEmptyFile(generated);
    zvx::WriteFileBytes(generated, 0, bytes);
    fs::rename(generated, file);
    return file;
}

std::vector<std::string> FolderRows(const fs::path& cfn) {
    std::vector<std::string> rows;
    zvx::ListFolderEntries(cfn, kFolderId, [&](std::string_view line) { rows.emplace_back(line); });
    return rows;
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

fs::path DefaultWorkBase() {
    std::error_code ec;
    return fs::is_directory("/dev/shm", ec) ? fs::path("/dev/shm") : fs::temp_directory_path();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 2) {
        std::fprintf(stderr, "usage: locked_apply_bench [FOLDER]\n");
        return 2;
    }
    try {
        ScratchFolder scratch(argc == 2 ? fs::path(argv[1]) : DefaultWorkBase());
        std::vector<Measurement> all;
        for (uint64_t entries : {100000ULL, 1000000ULL}) {
            all.push_back(Measure(CatalogueOf(entries), entries, scratch.path()));
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
