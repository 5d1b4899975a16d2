#include "adding/insert_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "adding/insert_rows.h"
#include "steady_screen.h"
#include "support/catalogue_bytes.h"
#include "support/entry_lines.h"
#include "support/fault_loop.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

TEST(InsertRows, DialogPathsBecomeRowsAndDotNamesAreDropped) {
    std::vector<InsertRow> rows;
    EXPECT_EQ(dataact(rows), "Currently are 0 files selected for inserting.");
    AddDialogResult(rows, {"/a.mp3", "/music/b c.wav", "/music/..", "/music/"});
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[0].folder, "");  // a file in the root
    EXPECT_EQ(rows[0].fullPath(), "/a.mp3");
    EXPECT_EQ(rows[1].name, "b c.wav");
    EXPECT_EQ(rows[1].folder, "/music");
    EXPECT_EQ(dataact(rows), "Currently are 2 files selected for inserting.");
    rows.pop_back();
    EXPECT_EQ(dataact(rows), "Currently is 1 file selected for inserting.");
}

TEST(InsertRun, AnAbortKeepsWhatWasAddedAndStopsTheRun) {
    test::TestEnvironment env;
    const auto cfn = env.folder / "doc.zvd";
    test::WriteAll(cfn, test::CatalogueBytes({{"A\\", "", 10, "00000003"}}, {}));
    std::vector<InsertRow> rows;
    for (int i = 1; i <= 10; ++i) {
        const auto path = env.folder / ("f" + std::to_string(i) + ".txt");
        if (i != 3)
            test::WriteAll(path, "data");
        listmore(rows, path.string());
    }
    env.common.DuplicateChoice = "keepall";
    env.screen.answerMessage(MsgAnswer::Abort);
    env.screen.answerMessage(MsgAnswer::Ok);
    InsertRun(env.common, cfn, "00000003", rows, true);

    EXPECT_EQ(test::FolderLines(cfn, "00000003").size(), 2u);
    ASSERT_EQ(env.screen.shown.size(), 2u);
    EXPECT_EQ(env.screen.shown[1].caption, "Error.");
    EXPECT_EQ(env.screen.shown[1].text, "Skipped Rest Of Adding-Procedure!");
    EXPECT_FALSE(env.common.AbortAdding);
    EXPECT_TRUE(env.common.DuplicateChoice.empty());
}

TEST(InsertRun, AFileTwiceInTheListGoesThroughTheDuplicateCheck) {
    test::TestEnvironment env;
    const auto cfn = env.folder / "doc.zvd";
    test::WriteAll(cfn, test::CatalogueBytes({{"A\\", "", 10, "00000000"}}, {}));
    const auto path = env.folder / "same.txt";
    test::WriteAll(path, "data");
    std::vector<InsertRow> rows;
    listmore(rows, path.string());
    listmore(rows, path.string());
    env.screen.answerDuplicate("keepold");
    InsertRun(env.common, cfn, "00000000", rows, false);
    EXPECT_EQ(test::FolderLines(cfn, "00000000").size(), 1u);
    EXPECT_EQ(env.screen.duplicates.size(), 1u);
    EXPECT_EQ(env.screen.statuses.back(), "");
}

// Rows f1.txt, f2.txt and f3.txt into a folder that holds an older entry of f2.txt,
// which the run overwrites.
struct OverwriteRun {
    OverwriteRun() {
        test::WriteAll(cfn, test::CatalogueBytes({{"A\\", "", 10, "00000000"}}, {}));
        for (const char* name : {"f1.txt", "f2.txt", "f3.txt"})
            listmore(rows, (env.folder / name).string());
        test::WriteAll(env.folder / "f2.txt", "old");
        InsertRun(env.common, cfn, "00000000", {rows[1]}, false);
        for (const InsertRow& row : rows)
            test::WriteAll(row.fullPath(), "new data");
    }
    bool run() { return InsertRun(env.common, cfn, "00000000", rows, false); }
    // The catalogue a run without faults leaves; the fixture stays as it was.
    std::string clean() {
        const std::string before = test::ReadAll(cfn);
        run();
        const std::string after = test::ReadAll(cfn);
        test::WriteAll(cfn, before);
        env.screen.duplicates.clear();
        return after;
    }
    std::vector<std::string> entries() const { return test::FolderLines(cfn, "00000000"); }

    test::SteadyEnvironment env;
    std::filesystem::path cfn = env.folder / "doc.zvd";
    std::vector<InsertRow> rows;
};

TEST(InsertRun, ARetriedWriteNeitherLosesNorDoublesALine) {
    for (const test::FaultKind& fault : test::kFaultKinds) {
        EXPECT_GE(test::ForEachFault([&](int n) {
                      OverwriteRun f;
                      const std::string expected = f.clean();
                      InjectedFileFault armed(fault.kind, n, fault.err);
                      EXPECT_TRUE(f.run());
                      EXPECT_EQ(f.env.screen.errorsAt.size(), armed.fired() ? 1u : 0u);
                      EXPECT_EQ(f.env.screen.duplicates.size(), 1u);
                      EXPECT_EQ(test::ReadAll(f.cfn), expected);
                      return armed.fired();
                  }),
                  2);
    }
}

// Ignore drops the entry of the row that failed, Abort also the rows after it; a failed
// end keeps the whole lines that reached the file. The old entry goes only when the run
// wrote its successor and ended whole.
TEST(InsertRun, AWriteGivenUpKeepsEveryLineWrittenBeforeIt) {
    for (MsgAnswer answer : {MsgAnswer::Ignore, MsgAnswer::Abort}) {
        for (const test::FaultKind& fault : test::kFaultKinds) {
            test::ForEachFault([&](int n) {
                OverwriteRun f;
                const std::string old = f.entries().at(0);
                const std::string before = test::ReadAll(f.cfn);
                f.run();
                const std::vector<std::string> added = f.entries();
                test::WriteAll(f.cfn, before);
                f.env.screen.errorAnswer = answer;
                InjectedFileFault armed(fault.kind, n, fault.err);
                const bool whole = f.run();
                std::vector<std::string> kept = f.entries();
                const bool replaced = std::ranges::count(kept, added[1]) == 1;
                if (!whole || !replaced) {
                    EXPECT_EQ(kept.at(0), old);
                    kept.erase(kept.begin());
                }
                std::vector<std::string> wanted = added;
                if (!whole)
                    wanted.resize(kept.size());  // what fitted, in order
                else if (armed.fired() && answer == MsgAnswer::Abort)
                    wanted.resize(static_cast<size_t>(f.env.screen.errorsAt.at(0)) - 1);
                else if (armed.fired())
                    wanted.erase(wanted.begin() + f.env.screen.errorsAt.at(0) - 1);
                EXPECT_EQ(kept, wanted);
                EXPECT_TRUE(test::ReadAll(f.cfn).ends_with("\r\n"));
                return armed.fired();
            });
        }
    }
}

}  // namespace
}  // namespace zvx
