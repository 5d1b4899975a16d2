// entry_copy_delete_bench [FOLDER]
//
// Times the delete and the copy of the selected entries of the entry list (DeleteEntries,
// and CopyMove by the menu road answered "Keep all") in catalogues of 100,000 and
// 1,000,000 entries whose folder 00000001 holds one entry in a hundred, spread over the
// whole file: 1,000 and 10,000 selected rows, the folder's whole listing. The delete is
// set against `grep -v -F -f PATTERNS` on the same file, PATTERNS being the selected
// lines; the copy into folder 00000002 (which holds entries already, so some copies are
// duplicates and asked about) against `cp` of the file followed by `grep -F -f PATTERNS`
// appending the selected lines to the copy. Both are set against `cp` alone too, since grep
// with thousands of long fixed strings spends most of its time matching. The listing that
// makes the rows is the window's and is not timed; building the selected-row match from
// them is.
// The runs work on copies in FOLDER (by default /dev/shm where it exists). The medians of
// nine rounds are printed with the cost an entry for each size, so that a run growing
// faster than the catalogue shows. Exits with 1 when at 1,000,000 entries the delete takes
// more than twice its grep or the copy more than three times its cp and grep, or when a
// run did not take every selected row.

#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench_support.h"
#include "common/common.h"
#include "document/copy_move.h"
#include "platform/file_io.h"
#include "quiet_screen.h"

namespace {

namespace fs = std::filesystem;
using namespace zvx::bench;

constexpr double kDeleteTarget = 2.0;
constexpr double kCopyTarget = 3.0;
constexpr int kRounds = 9;

// The answer that --on-duplicate keep-all gives.
class KeepAllScreen : public QuietScreen {
  public:
    std::string doubledetect(const zvx::DuplicateQuestion&) override {
        ++questions;
        return "keepall";
    }
    int questions = 0;
};

zvx::SelectedRows Selection(const std::vector<std::string>& rows) {
    zvx::SelectedRows selected;
    for (const std::string& row : rows)
        selected.add(row);
    return selected;
}

void WritePatterns(const fs::path& file, const std::vector<std::string>& rows) {
    std::string text;
    for (const std::string& row : rows)
        text += row + "\n";
    zvx::WriteEmptyFile(file);
    zvx::WriteFileBytes(file, 0, text);
}

struct Measurement {
    uint64_t entries = 0;
    size_t rows = 0;
    size_t copied = 0;
    int questions = 0;
    double cpMs = 0;
    double grepMs = 0;
    double deleteMs = 0;
    double cpGrepMs = 0;
    double copyMs = 0;
};

// Rounds of each tool and its operation on a fresh copy, interleaved so that a load on
// the machine that comes and goes weighs on both alike.
Measurement Measure(const fs::path& catalogue, uint64_t entries, const fs::path& work) {
    KeepAllScreen screen;
    zvx::Common common(work, work, screen);
    const fs::path cfn = work / "Document 1.tmp";
    const fs::path patterns = work / "patterns.txt";
    const std::string file = ShellQuoted(cfn.string());
    const std::string out = ShellQuoted((work / "out.zvx").string());
    const std::string fixed = "grep -a -F -f " + ShellQuoted(patterns.string()) + " ";
    const std::string grepDelete =
        "grep -a -v -F -f " + ShellQuoted(patterns.string()) + " " + file + " > " + out;
    const std::string cp = "cp " + file + " " + out;
    const std::string cpGrep = cp + " && " + fixed + file + " >> " + out;
    const std::string target = std::string(kOtherFolderId) + "\\";

    Measurement m{entries};
    std::vector<double> cpTimes, grepTimes, deleteTimes, cpGrepTimes, copyTimes;
    for (int round = 0; round < kRounds; ++round) {
        zvx::CopyFileBytes(catalogue, cfn);
        const std::vector<std::string> rows = FolderRows(cfn, kSparseFolderId);
        if (round == 0)
            WritePatterns(patterns, rows);
        cpTimes.push_back(Milliseconds([&] { RunShell(cp); }));
        grepTimes.push_back(Milliseconds([&] { RunShell(grepDelete); }));
        size_t removed = 0;
        deleteTimes.push_back(
            Milliseconds([&] { removed = zvx::DeleteEntries(common, cfn, Selection(rows)); }));
        if (removed != rows.size())
            throw std::runtime_error("the delete missed selected rows");

        zvx::CopyFileBytes(catalogue, cfn);
        screen.questions = 0;
        cpGrepTimes.push_back(Milliseconds([&] { RunShell(cpGrep); }));
        zvx::EntryCopyCount count;
        copyTimes.push_back(Milliseconds([&] {
            count =
                zvx::CopyMove(common, cfn, zvx::EntryCopyMode::Copy, target, Selection(rows), true);
        }));
        if (count.selected != rows.size() || count.written == 0)
            throw std::runtime_error("the copy missed selected rows");
        m.rows = rows.size();
        m.copied = count.written;
        m.questions = screen.questions;
    }
    m.cpMs = Median(cpTimes);
    m.grepMs = Median(grepTimes);
    m.deleteMs = Median(deleteTimes);
    m.cpGrepMs = Median(cpGrepTimes);
    m.copyMs = Median(copyTimes);
    return m;
}

double PerEntry(double ms, uint64_t entries) {
    return 1000 * ms / static_cast<double>(entries);
}

void ReportRun(const char* name, double ms, uint64_t entries, double toolMs, double target,
               double cpMs) {
    std::printf(
        "  %-12s %9.1f ms  %6.3f us an entry  ratio %5.2f (target <= %.0f), %.2f times cp\n", name,
        ms, PerEntry(ms, entries), ms / toolMs, target, ms / cpMs);
}

void Report(const Measurement& m) {
    std::printf("%llu entries, %zu selected rows (%zu copied, %d duplicate question%s)\n",
                static_cast<unsigned long long>(m.entries), m.rows, m.copied, m.questions,
                m.questions == 1 ? "" : "s");
    std::printf("  cp:          %9.1f ms\n", m.cpMs);
    std::printf("  grep -v -F:  %9.1f ms\n", m.grepMs);
    ReportRun("delete:", m.deleteMs, m.entries, m.grepMs, kDeleteTarget, m.cpMs);
    std::printf("  cp + grep:   %9.1f ms\n", m.cpGrepMs);
    ReportRun("copy:", m.copyMs, m.entries, m.cpGrepMs, kCopyTarget, m.cpMs);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 2) {
        std::fprintf(stderr, "usage: entry_copy_delete_bench [FOLDER]\n");
        return 2;
    }
    try {
        ScratchFolder scratch(argc == 2 ? fs::path(argv[1]) : DefaultWorkBase());
        std::vector<Measurement> all;
        for (uint64_t entries : {100000ULL, 1000000ULL}) {
            all.push_back(
                Measure(SparseFolderCatalogue(ZVX_BENCH_FOLDER, entries), entries, scratch.path()));
            Report(all.back());
        }
        const Measurement& small = all.front();
        const Measurement& large = all.back();
        std::printf(
            "cost an entry, %llu entries against %llu: delete x%.2f, copy x%.2f\n",
            static_cast<unsigned long long>(large.entries),
            static_cast<unsigned long long>(small.entries),
            PerEntry(large.deleteMs, large.entries) / PerEntry(small.deleteMs, small.entries),
            PerEntry(large.copyMs, large.entries) / PerEntry(small.copyMs, small.entries));
        const bool met = large.deleteMs / large.grepMs <= kDeleteTarget &&
                         large.copyMs / large.cpGrepMs <= kCopyTarget;
        return met ? 0 : 1;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "entry_copy_delete_bench: %s\n", e.what());
        return 1;
    }
}
