#include "store/duplicate_index.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "store/append_entry.h"
#include "store/duplicate_check.h"
#include "store/entry_offset.h"
#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

// How the catalogue the runs start from is laid out. Only the first two let the index
// answer; on the others it must step aside so that the full check decides as always.
enum class Layout { CrLf, BareLfEntries, BareLfToc, OpenLastLine, StaleOffset };

enum class Check { FullScan, Index, CollidingIndex };

// A small world of keys, so that a run meets many duplicates, several of one key. The
// folder ID with a "\" behind it is the same key as the bare one.
struct Draw {
    const char* pick(std::vector<const char*> choices) {
        return choices[random() % choices.size()];
    }
    std::string number() { return std::to_string(random() % 1000); }
    bool oneIn(unsigned n) { return random() % n == 0; }
    std::mt19937 random;
};

std::string DrawLine(Draw& draw) {
    const std::string id = draw.pick({"00000001", "00000002", "00000001\\"});
    return test::EntryLineOf(
        id, {draw.pick({"a.mp3", "b.mp3", "c.mp3"}), draw.number(), draw.pick({"c:\\m", "c:\\n"}),
             draw.pick({"CD1", "CD2"}), "0", "", "01-0" + draw.number() + "-2000"});
}

std::string CatalogueOf(const std::vector<std::string>& lines, Layout layout) {
    const std::string end = layout == Layout::BareLfToc ? "\n" : "\r\n";
    const std::string toc = "a\\" + end + "2" + end + "00000001" + end + end;
    std::string entries;
    for (const std::string& line : lines)
        entries += line + (layout == Layout::BareLfEntries ? "\n" : "\r\n");
    if (layout == Layout::OpenLastLine)
        entries.resize(entries.size() - 2);
    uint64_t offset = 6 + toc.size();
    if (layout == Layout::StaleOffset)
        offset += lines[0].size() + 2;
    return "\x01" + EncodeEntryOffset(offset) + toc + entries;
}

struct Outcome {
    std::vector<std::string> questions;
    std::vector<bool> appended;
    std::vector<std::string> filesAfterEachRun;
    size_t answersLeft = 0;
};

// Four add runs of AppendEntry calls drawn from the seed, the answers drawn alike.
Outcome RunAdds(unsigned seed, Layout layout, Check check) {
    test::TestEnvironment env;
    env.common.settings.caseMode = 0;
    const std::filesystem::path file = env.folder / "Document 1.tmp";
    Draw draw{std::mt19937(seed)};
    std::vector<std::string> lines;
    for (int i = 0; i < 30; ++i)
        lines.push_back(DrawLine(draw));
    test::WriteAll(file, CatalogueOf(lines, layout));
    for (int i = 0; i < 200; ++i)
        env.screen.answerDuplicate(
            draw.pick({"keepold", "keepold", "keepold", "delold", "delold", "keepall", "delall"}));
    Outcome outcome;
    for (int run = 0; run < 4; ++run) {
        env.common.DuplicateChoice.clear();
        if (check == Check::CollidingIndex)
            env.common.duplicateIndex = std::make_shared<DuplicateIndex>(
                file, [](std::string_view) -> uint64_t { return 7; });
        if (check == Check::Index)
            BeginAddRun(env.common, file);
        for (int i = 0; i < 12; ++i) {
            EntryValues v;
            v.driveId = draw.pick({"CD1", "CD2"});
            v.size = draw.number();
            const std::string path = std::string(draw.pick({"c:\\m\\", "C:\\n\\"})) +
                                     draw.pick({"a.mp3", "b.mp3", "c.mp3"});
            outcome.appended.push_back(
                AppendEntry(env.common, file, draw.pick({"00000001", "00000002", "00000001\\"}),
                            path, v, false, !draw.oneIn(8)));
        }
        EndAddRun(env.common);
        outcome.filesAfterEachRun.push_back(test::ReadAll(file));
    }
    for (const DuplicateQuestion& q : env.screen.duplicates)
        outcome.questions.push_back(q.oldname + "|" + q.oldsize + "|" + q.olddate + "|" +
                                    q.newname + "|" + q.newsize + "|" + q.newdate);
    outcome.answersLeft = env.screen.unanswered();
    EXPECT_FALSE(std::filesystem::exists(env.folder / "tempfil2.tmp"));
    return outcome;
}

// Layouts the index works on get more seeds than those where it steps aside.
class AddRunLayout : public ::testing::TestWithParam<Layout> {};

TEST_P(AddRunLayout, AsksAndWritesExactlyAsTheFullCheck) {
    const unsigned seeds =
        GetParam() == Layout::CrLf || GetParam() == Layout::BareLfEntries ? 8 : 3;
    for (unsigned seed = 1; seed <= seeds; ++seed) {
        const Outcome scanned = RunAdds(seed, GetParam(), Check::FullScan);
        for (Check check : {Check::Index, Check::CollidingIndex}) {
            SCOPED_TRACE("seed " + std::to_string(seed) +
                         (check == Check::Index ? "" : ", colliding"));
            const Outcome indexed = RunAdds(seed, GetParam(), check);
            EXPECT_EQ(indexed.questions, scanned.questions);
            EXPECT_EQ(indexed.appended, scanned.appended);
            EXPECT_EQ(indexed.answersLeft, scanned.answersLeft);
            for (size_t run = 0; run < scanned.filesAfterEachRun.size(); ++run)
                EXPECT_TRUE(indexed.filesAfterEachRun[run] == scanned.filesAfterEachRun[run])
                    << "after run " << run;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(DuplicateIndex, AddRunLayout,
                         ::testing::Values(Layout::CrLf, Layout::BareLfEntries, Layout::BareLfToc,
                                           Layout::OpenLastLine, Layout::StaleOffset));

TEST(DuplicateIndex, OverwrittenLinesStayUntilTheRunEnds) {
    test::TestEnvironment env;
    env.common.settings.caseMode = 0;
    const std::filesystem::path file = env.folder / "Document 1.tmp";
    const std::string old = test::EntryLineOf("00000001\\", {"a.mp3", "10", "c:\\m", "CD1"});
    const std::string other = test::EntryLineOf("00000001", {"b.mp3", "10", "c:\\m", "CD1"});
    test::WriteAll(file, CatalogueOf({old, other}, Layout::CrLf));
    EntryValues v;
    v.driveId = "CD1";
    AddRunScope run(env.common, file);
    { AddRunScope inner(env.common, file); }
    ASSERT_TRUE(env.common.duplicateIndex);  // the inner scope did not end the run
    env.screen.answerDuplicate(kDelOld);
    ASSERT_TRUE(AppendEntry(env.common, file, "00000001", "c:\\m\\a.mp3", v, false, true));
    const std::string added = ComposeEntryLine("00000001", "c:\\m\\a.mp3", v, false,
                                               env.common.settings.renumberingLevel);
    // Until the run ends the old line stays, and the new one waits to be written.
    EXPECT_EQ(test::ReadAll(file), CatalogueOf({old, other}, Layout::CrLf));
    run.end();
    EXPECT_FALSE(env.common.duplicateIndex);
    EXPECT_EQ(test::ReadAll(file), CatalogueOf({other, added}, Layout::CrLf));
}

}  // namespace
}  // namespace zvx
