// An add run over files that are all in the catalogue already, answered "Keep all":
// AppendEntry with the duplicate check, per file, in catalogues of 100,000 and 1,000,000
// entries. With the run's duplicate index the time a file stays the same for both sizes;
// the one scan that builds the index is measured apart, and the check without an index,
// one scan a file, for comparison. The catalogues are generated once into the build
// folder, and each size is checked in a work copy beside it.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "catalogue_generator.h"
#include "common/common.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "quiet_screen.h"
#include "store/append_entry.h"
#include "store/duplicate_check.h"
#include "store/duplicate_index.h"
#include "store/entry_line.h"
#include "store/entry_offset.h"

namespace {

constexpr size_t kSampledFiles = 1000;

// What AddFileEntry would hand to AppendEntry for a file an entry line stands for.
struct KnownFile {
    std::string folderId;
    std::string fullPath;
    zvx::EntryValues values;
    bool readOnly = false;
};

KnownFile KnownFileOf(std::string_view line) {
    const zvx::EntryFields f = zvx::SplitEntryLine(line);
    auto field = [&](int number) { return std::string(f[number]); };
    return {field(0), field(3) + "\\" + field(1),
            zvx::EntryValues{field(2), field(4), field(6), field(7), field(8), field(9), field(10),
                             field(11), field(12), field(13), field(14), field(15), field(16),
                             field(17), field(18), field(19), field(20), field(21), field(22)},
            f[5] == "1"};
}

// Every n-th entry of the catalogue, spread over the whole file.
std::vector<KnownFile> SampleKnownFiles(const std::filesystem::path& catalogue, uint64_t entries) {
    std::vector<KnownFile> files;
    zvx::LineReader reader(catalogue, zvx::ReadEntryOffset(catalogue) - 1);
    std::string_view line;
    for (uint64_t number = 0; reader.next(line); ++number) {
        if (number % (entries / kSampledFiles) == 0)
            files.push_back(KnownFileOf(line));
    }
    return files;
}

struct Fixture {
    std::filesystem::path workCopy;
    std::vector<KnownFile> files;
};

// The generated catalogue of the size (the 1,000,000 one is the listing benchmark's), its
// work copy, and the sampled files, made once a process.
const Fixture& FixtureOf(uint64_t entries) {
    static std::map<uint64_t, Fixture> fixtures;
    auto [it, isNew] = fixtures.try_emplace(entries);
    if (isNew) {
        const std::string name = entries == 1000000 ? "listing_1m" : "listing_100k";
        const std::filesystem::path generated =
            std::filesystem::path(ZVX_BENCH_FOLDER) / (name + ".zvx");
        if (!std::filesystem::exists(generated))
            zvx::bench::GenerateCatalogue(
                generated, {.entries = entries, .folders = entries / 500, .seed = 1});
        it->second.workCopy = generated.parent_path() / (name + ".dupcheck.zvx");
        zvx::CopyFileBytes(generated, it->second.workCopy);
        it->second.files = SampleKnownFiles(it->second.workCopy, entries);
    }
    return it->second;
}

void AddKnownFiles(benchmark::State& state, bool withIndex) {
    const Fixture& fixture = FixtureOf(static_cast<uint64_t>(state.range(0)));
    zvx::bench::QuietScreen screen;
    const std::filesystem::path here = std::filesystem::temp_directory_path();
    zvx::Common common(here, here, screen);
    common.settings.caseMode = 0;
    common.DuplicateChoice = zvx::kKeepAll;
    std::optional<zvx::AddRunScope> run;
    if (withIndex)
        run.emplace(common, fixture.workCopy);
    auto add = [&](size_t i) {
        const KnownFile& f = fixture.files[i % fixture.files.size()];
        return zvx::AppendEntry(common, fixture.workCopy, f.folderId, f.fullPath, f.values,
                                f.readOnly, true);
    };
    size_t appended = add(0);  // builds the index
    size_t next = 1;
    for (auto _ : state)
        appended += add(next++);
    if (run)
        run->end();
    if (appended > 0)
        state.SkipWithError("a file of the catalogue was appended again");
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(AddKnownFiles, WithIndex, true)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(AddKnownFiles, FullScan, false)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond);

// The one scan at the first check of a run.
void BuildIndex(benchmark::State& state) {
    const Fixture& fixture = FixtureOf(static_cast<uint64_t>(state.range(0)));
    for (auto _ : state) {
        zvx::DuplicateIndex index(fixture.workCopy);
        benchmark::DoNotOptimize(index.answersFor(fixture.workCopy));
    }
    state.SetBytesProcessed(state.iterations() * zvx::FileLength(fixture.workCopy));
}
BENCHMARK(BuildIndex)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
