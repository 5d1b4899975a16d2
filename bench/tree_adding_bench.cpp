// tree_adding_bench [FILES ...] | --root DIR
//
// Times the tree-adding run (AddTree, as the wizard starts it: as root-folders under a
// new parental folder, a real folder for each directory, audio files detagged, "*.*")
// over a generated tree of FILES small files (50,000 and 100,000 by default) in
// directories of 100, a fifth of them MP3s with an ID3v1 tag: first into an empty
// catalogue, then once more over the same tree, where every folder is found again and
// every file goes through the duplicate check, answered "Keep all" (so the re-run adds
// nothing). Each is set against `find ROOT -type f -printf '%s %T@ %p\n'` over the same
// tree; the medians of five rounds are printed with the cost a file for each size, so
// that a re-run growing faster than the tree shows. With --root the tree DIR is walked
// as it stands. The generated trees live in a temporary folder that is removed at the
// end. Exits with 1 when a run misses its target: the first run within 3 times find, the
// re-run within 4 times.

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

#include "adding/tree_adding.h"
#include "common/common.h"
#include "quiet_screen.h"
#include "store/catalogue_info.h"
#include "store/new_catalogue.h"
#include "tree_generator.h"

namespace {

namespace fs = std::filesystem;

constexpr double kFirstRunTarget = 3.0;
constexpr double kReRunTarget = 4.0;
constexpr int kRounds = 5;
constexpr uint64_t kFilesPerAlbum = 100;

// The re-run's first duplicate question is answered "Keep all": the old entries stay and
// no file is asked about again.
class KeepAllScreen : public zvx::bench::QuietScreen {
  public:
    std::string doubledetect(const zvx::DuplicateQuestion&) override { return "keepall"; }
};

class ScratchFolder {
  public:
    ScratchFolder() {
        std::string pattern = (fs::temp_directory_path() / "zvx-treebench-XXXXXX").string();
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

// The tree is in the page cache for find as it is for the runs of AddTree.
double FindMilliseconds(const fs::path& root) {
    const std::string command =
        "find " + ShellQuoted(root.string()) + " -type f -printf '%s %T@ %p\\n' > /dev/null";
    return Milliseconds([&] {
        if (std::system(command.c_str()) != 0)
            throw std::runtime_error("find failed");
    });
}

void RunWizard(zvx::Common& common, const fs::path& cfn, const fs::path& root) {
    zvx::TreeAddingChoices choices;
    choices.root = root;
    choices.makeParental = true;
    choices.parentalName = "Benchmark";
    choices.realFolders = true;
    choices.detag = true;
    zvx::AddTree(common, cfn, choices);
    zvx::KillTempFiles(common);
}

// The medians of the rounds' times; the counts are the same in every round.
struct Measurement {
    double findMs = 0;
    double firstMs = 0;
    double reRunMs = 0;
    uint64_t files = 0;  // the entries of the first run
    uint64_t reRunEntries = 0;
    uint64_t folders = 0;
};

// Rounds of find, the first run into a fresh catalogue in `work` and the re-run, with
// the settings' defaults. The rounds interleave, so that a load on the machine that comes
// and goes weighs on all three alike.
Measurement Measure(const fs::path& root, const fs::path& work) {
    fs::create_directories(work);
    KeepAllScreen screen;
    zvx::Common common(work, work, screen);
    const fs::path cfn = work / "tree.zvx";
    std::vector<double> find, first, reRun;
    Measurement m;
    for (int round = 0; round < kRounds; ++round) {
        zvx::CreateCatalogue(common, cfn);
        find.push_back(FindMilliseconds(root));
        first.push_back(Milliseconds([&] { RunWizard(common, cfn, root); }));
        const uint64_t firstEntries = zvx::InspectCatalogue(cfn).entryLines;
        reRun.push_back(Milliseconds([&] { RunWizard(common, cfn, root); }));
        const zvx::CatalogueInfo info = zvx::InspectCatalogue(cfn);
        if (round > 0 && (firstEntries != m.files || info.folders != m.folders))
            throw std::runtime_error("the rounds made different catalogues");
        m.files = firstEntries;
        m.reRunEntries = std::max(m.reRunEntries, info.entryLines - firstEntries);
        m.folders = info.folders;
    }
    m.findMs = Median(find);
    m.firstMs = Median(first);
    m.reRunMs = Median(reRun);
    return m;
}

// Prints the measurement; false when a target is missed, or when the first run did not
// add every file or the re-run added any.
bool Report(const Measurement& m, uint64_t expectedFiles) {
    const double first = m.firstMs / m.findMs;
    const double reRun = m.reRunMs / m.findMs;
    std::printf("%llu files, %llu folders\n", static_cast<unsigned long long>(m.files),
                static_cast<unsigned long long>(m.folders));
    std::printf("  find:      %9.1f ms\n", m.findMs);
    std::printf("  first run: %9.1f ms  %6.2f us a file  ratio %5.2f (target <= %.0f)\n", m.firstMs,
                1000 * m.firstMs / m.files, first, kFirstRunTarget);
    std::printf("  re-run:    %9.1f ms  %6.2f us a file  ratio %5.2f (target <= %.0f)\n", m.reRunMs,
                1000 * m.reRunMs / m.files, reRun, kReRunTarget);
    bool right = true;
    if (m.files != expectedFiles || m.reRunEntries != 0) {
        std::printf("  WRONG: %llu entries by the first run, %llu by the re-run\n",
                    static_cast<unsigned long long>(m.files),
                    static_cast<unsigned long long>(m.reRunEntries));
        right = false;
    }
    return right && first <= kFirstRunTarget && reRun <= kReRunTarget;
}

// The cost a file of each run at the largest tree against the smallest: about 1 when a
// run grows with the tree, about the ratio of the sizes when it is quadratic.
void ReportGrowth(const std::vector<Measurement>& all) {
    if (all.size() < 2)
        return;
    const Measurement& small = all.front();
    const Measurement& large = all.back();
    auto perFile = [](double ms, uint64_t files) { return ms / static_cast<double>(files); };
    std::printf("cost a file, %llu files against %llu: first run x%.2f, re-run x%.2f\n",
                static_cast<unsigned long long>(large.files),
                static_cast<unsigned long long>(small.files),
                perFile(large.firstMs, large.files) / perFile(small.firstMs, small.files),
                perFile(large.reRunMs, large.files) / perFile(small.reRunMs, small.files));
}

int RunGenerated(const std::vector<uint64_t>& sizes) {
    ScratchFolder scratch;
    std::vector<Measurement> all;
    bool met = true;
    for (uint64_t files : sizes) {
        const fs::path root = scratch.path() / ("tree" + std::to_string(files));
        zvx::bench::TreeShape shape;
        shape.albums = files / kFilesPerAlbum;
        shape.filesPerAlbum = kFilesPerAlbum;
        const zvx::bench::TreeCounts counts = zvx::bench::GenerateTree(root, shape);
        std::printf("generated %llu files (%llu MP3s) in %llu directories\n",
                    static_cast<unsigned long long>(counts.files),
                    static_cast<unsigned long long>(counts.mp3Files),
                    static_cast<unsigned long long>(counts.directories));
        all.push_back(Measure(root, scratch.path() / ("work" + std::to_string(files))));
        met = Report(all.back(), counts.files) && met;
        fs::remove_all(root);
    }
    ReportGrowth(all);
    return met ? 0 : 1;
}

int RunGiven(const fs::path& root) {
    ScratchFolder scratch;
    const Measurement m = Measure(root, scratch.path());
    if (m.files == 0)
        throw std::runtime_error("no file of " + root.string() + " was added");
    return Report(m, m.files) ? 0 : 1;
}

bool ParseSizes(int argc, char** argv, std::vector<uint64_t>& sizes) {
    for (int i = 1; i < argc; ++i) {
        char* end = nullptr;
        const uint64_t files = std::strtoull(argv[i], &end, 10);
        if (end == argv[i] || *end != '\0' || files < kFilesPerAlbum)
            return false;
        sizes.push_back(files);
    }
    if (sizes.empty())
        sizes = {50000, 100000};
    std::sort(sizes.begin(), sizes.end());
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        if (argc == 3 && std::string(argv[1]) == "--root")
            return RunGiven(argv[2]);
        std::vector<uint64_t> sizes;
        if (!ParseSizes(argc, argv, sizes)) {
            std::fprintf(stderr, "usage: tree_adding_bench [FILES ...] | --root DIR\n");
            return 2;
        }
        return RunGenerated(sizes);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tree_adding_bench: %s\n", error.what());
        return 1;
    }
}
