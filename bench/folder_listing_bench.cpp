// Listing one folder of a 1,000,000-entry catalogue over 2,000 folders: one scan of the
// whole entry section, by the store and by the document window's listing (ShowEntries),
// plainly and as a sub-view. The catalogue is generated once into the build folder.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string_view>

#include "catalogue_generator.h"
#include "common/common.h"
#include "document/show_entries.h"
#include "platform/file_io.h"
#include "quiet_screen.h"
#include "store/entry_line.h"
#include "store/folder_listing.h"

namespace {

constexpr const char* kFolderId = "00001000";

const std::filesystem::path& ListingCatalogue() {
    static const std::filesystem::path path = [] {
        std::filesystem::path p = ZVX_BENCH_CATALOGUE;
        if (!std::filesystem::exists(p))
            zvx::bench::GenerateCatalogue(p, {.entries = 1000000, .folders = 2000, .seed = 1});
        return p;
    }();
    return path;
}

void CountFolderEntries(benchmark::State& state) {
    const auto& catalogue = ListingCatalogue();
    for (auto _ : state) {
        size_t count = 0;
        zvx::ListFolderEntries(catalogue, kFolderId, [&](std::string_view) { ++count; });
        benchmark::DoNotOptimize(count);
    }
    state.SetBytesProcessed(state.iterations() * zvx::FileLength(catalogue));
}
BENCHMARK(CountFolderEntries)->Unit(benchmark::kMillisecond);

void SplitFolderEntries(benchmark::State& state) {
    const auto& catalogue = ListingCatalogue();
    for (auto _ : state) {
        size_t bytes = 0;
        zvx::ListFolderEntries(catalogue, kFolderId, [&](std::string_view line) {
            zvx::EntryFields fields = zvx::SplitEntryLine(line);
            bytes += fields[1].size() + fields[22].size();
        });
        benchmark::DoNotOptimize(bytes);
    }
    state.SetBytesProcessed(state.iterations() * zvx::FileLength(catalogue));
}
BENCHMARK(SplitFolderEntries)->Unit(benchmark::kMillisecond);

// The rows of the window's listing: of folder 00001000, or the sub-view of the root
// "Music" (about 60% of all entries).
void ShowFolderEntries(benchmark::State& state, zvx::ListingSelection selection) {
    const auto& catalogue = ListingCatalogue();
    zvx::bench::QuietScreen screen;
    const std::filesystem::path here = std::filesystem::temp_directory_path();
    zvx::Common common(here, here, screen);
    for (auto _ : state) {
        zvx::ViewBuffer buffer;
        zvx::EntryRows rows = zvx::ShowEntries(common, catalogue, selection, buffer);
        benchmark::DoNotOptimize(rows.size());
    }
    state.SetBytesProcessed(state.iterations() * zvx::FileLength(catalogue));
}
BENCHMARK_CAPTURE(ShowFolderEntries, Plain, {true, kFolderId, "", false})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ShowFolderEntries, SubView, {true, "00000000", "Music", true})
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
