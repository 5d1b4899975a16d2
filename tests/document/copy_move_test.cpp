#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "document/copy_move.h"
#include "platform/file_error.h"
#include "platform/file_faults.h"
#include "store/catalogue_format.h"
#include "store/duplicate_check.h"
#include "store/entry_line.h"
#include "store/entry_offset.h"
#include "support/catalogue_bytes.h"
#include "support/fault_loop.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::CatalogueBytes;
using test::EntryLineOf;

const std::vector<test::FolderSpec> kFolders = {{"A\\", "", 10, "00000000"},
                                                {"B\\", "", 10, "00000001"}};

std::string Entry(const std::string& id, const std::string& name, const std::string& size = "5",
                  const std::string& date = "01-02-2003") {
    return EntryLineOf(id, {name, size, "c:\\m", "LABEL", "0", "", date});
}

// A working copy in a test environment, with the plug-in events it fired.
struct Document {
    explicit Document(const std::vector<std::string>& entries) {
        test::WriteAll(cfn, CatalogueBytes(kFolders, entries));
        env.common.onPlugStart = [this](const std::string& name) { events.push_back(name); };
    }
    EntryCopyCount copyMove(EntryCopyMode mode, const std::string& target,
                            const std::vector<std::string>& rows) {
        SelectedRows selected;
        for (const std::string& row : rows)
            selected.add(row);
        return CopyMove(env.common, cfn, mode, target, selected, !rows.empty());
    }
    std::string bytes() const { return test::ReadAll(cfn); }
    bool is(const std::vector<std::string>& entries) const {
        return bytes() == CatalogueBytes(kFolders, entries);
    }

    test::TestEnvironment env;
    std::filesystem::path cfn = env.folder / "Document 1.tmp";
    std::vector<std::string> events;
};

TEST(CopyMove, WithoutRowsNothingHappensButTheChoiceIsCleared) {
    Document doc({Entry("00000000", "a")});
    doc.env.common.DuplicateChoice = kKeepAll;
    doc.copyMove(EntryCopyMode::Move, "00000001\\", {});
    EXPECT_TRUE(doc.is({Entry("00000000", "a")}));
    EXPECT_TRUE(doc.env.screen.statuses.empty());
    EXPECT_TRUE(doc.events.empty());
    EXPECT_EQ(doc.env.common.DuplicateChoice, "");
}

TEST(CopyMove, ACopyIntoItsOwnFolderByTheMenuAsks) {
    const std::string a = Entry("00000000", "a");
    for (const char* answer : {kKeepOld, kDelOld}) {
        Document doc({a, Entry("00000001", "b")});
        doc.env.screen.answerDuplicate(answer);
        doc.copyMove(EntryCopyMode::Copy, "00000000\\", {a});
        ASSERT_EQ(doc.env.screen.duplicates.size(), 1u);
        // "Overwrite old" strikes the line just written and writes the copy in its
        // place, with the "\" as its ninth character.
        EXPECT_TRUE(answer == kKeepOld
                        ? doc.is({a, Entry("00000001", "b")})
                        : doc.is({"00000000\\" + a.substr(8), Entry("00000001", "b")}))
            << answer;
        EXPECT_EQ(doc.events, std::vector<std::string>{"ENTRYCOPY"});
        EXPECT_EQ(doc.env.screen.statuses,
                  (std::vector<std::string>{"Copying selected entries...", ""}));
    }
}

TEST(CopyMove, TheBareIdOfTheLinesOwnFolderWritesItOnceAndAsksNothing) {
    const std::string a = Entry("00000000", "a");
    for (EntryCopyMode mode : {EntryCopyMode::Copy, EntryCopyMode::Move}) {
        Document doc({a, Entry("00000001", "b")});
        doc.copyMove(mode, "00000000", {a});
        EXPECT_TRUE(doc.is({a, Entry("00000001", "b")}));
        EXPECT_TRUE(doc.env.screen.duplicates.empty());
    }
}

// Size and date play no part: the target's entry is a duplicate, and the question shows
// both. "Keep old" keeps it, and the moved line is gone.
TEST(CopyMove, AMoveAnsweredKeepOldLosesTheSourceAndKeepsTheTargetsEntry) {
    const std::string source = Entry("00000000", "a", "5", "01-02-2003");
    const std::string old = Entry("00000001", "a", "7", "04-05-2006");
    Document doc({old, source, Entry("00000000", "c")});
    doc.env.screen.answerDuplicate(kKeepOld);
    const EntryCopyCount count = doc.copyMove(EntryCopyMode::Move, "00000001\\", {source});
    EXPECT_EQ(count.selected, 1u);
    EXPECT_EQ(count.written, 0u);
    EXPECT_TRUE(doc.is({old, Entry("00000000", "c")}));
    ASSERT_EQ(doc.env.screen.duplicates.size(), 1u);
    const DuplicateQuestion& q = doc.env.screen.duplicates[0];
    EXPECT_EQ(q.oldname + q.oldsize + q.olddate + "|" + q.newname + q.newsize + q.newdate,
              "a704-05-2006|a501-02-2003");
    EXPECT_EQ(doc.events, std::vector<std::string>{"ENTRYMOVE"});
}

TEST(CopyMove, OverwriteAllAsksNothingMoreInItsRunAndTheNextRunAsksAgain) {
    const std::vector<std::string> sources = {Entry("00000000", "a"), Entry("00000000", "b")};
    const std::vector<std::string> copies = {"00000001\\" + sources[0].substr(8),
                                             "00000001\\" + sources[1].substr(8)};
    Document doc({Entry("00000001", "a"), Entry("00000001", "b"), sources[0], sources[1]});
    doc.env.screen.answerDuplicate(kDelAll);
    doc.copyMove(EntryCopyMode::Copy, "00000001\\", sources);
    EXPECT_EQ(doc.env.screen.duplicates.size(), 1u);
    EXPECT_TRUE(doc.is({sources[0], copies[0], sources[1], copies[1]}));
    // Moving the copies back meets the sources again.
    doc.env.screen.answerDuplicate(kKeepOld);
    doc.env.screen.answerDuplicate(kKeepOld);
    doc.copyMove(EntryCopyMode::Move, "00000000\\", copies);
    EXPECT_EQ(doc.env.screen.duplicates.size(), 3u);
    EXPECT_TRUE(doc.is(sources));
}

// One selected row takes every line of its folder with its name, path and medium ID,
// whatever their other fields.
TEST(DeleteEntries, AskFirstAndRemoveTheLinesOfTheSelectedRows) {
    const std::string a = Entry("00000000", "a", "5");
    Document doc({a, Entry("00000001", "a"), Entry("00000000", "a", "9"), Entry("00000000", "b")});
    doc.env.screen.answerMessage(MsgAnswer::Yes);
    ASSERT_TRUE(ConfirmEntryDelete(doc.env.common));
    EXPECT_EQ(doc.env.screen.shown[0].caption + "|" + doc.env.screen.shown[0].text,
              "Question|Are you sure to delete the selected entries?");
    SelectedRows selected;
    selected.add(a);
    EXPECT_EQ(DeleteEntries(doc.env.common, doc.cfn, selected), 2u);
    EXPECT_TRUE(doc.is({Entry("00000001", "a"), Entry("00000000", "b")}));
    EXPECT_EQ(doc.events, std::vector<std::string>{"ENTRYDEL"});
    EXPECT_EQ(doc.env.screen.statuses,
              (std::vector<std::string>{"Removing selected entries...", ""}));
    EXPECT_GT(doc.env.changedCalls, 0);
}

TEST(CopyMove, AFailedWriteLeavesTheWorkingCopyAsItWas) {
    const std::string a = Entry("00000000", "a");
    for (const test::FaultKind& fault : test::kFaultKinds) {
        EXPECT_GE(test::ForEachFault([&](int n) {
                      Document doc({a, Entry("00000001", "a")});
                      const std::string before = doc.bytes();
                      doc.env.screen.answerDuplicate(kDelOld);
                      InjectedFileFault armed(fault.kind, n, fault.err);
                      try {
                          doc.copyMove(EntryCopyMode::Move, "00000001\\", {a});
                      } catch (const FileError&) {
                          EXPECT_EQ(doc.bytes(), before);
                      }
                      return armed.fired();
                  }),
                  3);
    }
}

// --- The fast run against the algorithm as it reads, on small random catalogues ---

// Answers the duplicate question by chance and records each question.
class RandomScreen : public test::ScriptedScreen {
  public:
    explicit RandomScreen(unsigned seed) : random_(seed) {}
    std::string doubledetect(const DuplicateQuestion& q) override {
        asked += q.oldname + "," + q.oldsize + "," + q.olddate + ">" + q.newname + "," + q.newsize +
                 "," + q.newdate + ";";
        static const char* const kChoices[] = {kKeepOld, kKeepAll, kDelOld, kDelAll};
        return kChoices[random_() % 4];
    }
    std::string asked;

  private:
    std::mt19937 random_;
};

// The lines of a file from a 0-based offset as the line reader splits them, each with
// the 1-based position behind it.
std::vector<std::pair<std::string, size_t>> LinesFrom(const std::string& bytes, size_t offset) {
    std::vector<std::pair<std::string, size_t>> lines;
    while (offset < bytes.size()) {
        const size_t lf = std::min(bytes.find('\n', offset), bytes.size());
        const size_t cut = lf < bytes.size() && lf > offset && bytes[lf - 1] == '\r' ? lf - 1 : lf;
        lines.emplace_back(bytes.substr(offset, cut - offset), std::min(lf + 1, bytes.size()) + 1);
        offset = lf + 1;
    }
    return lines;
}

bool SelectedByRows(const std::vector<std::string>& rows, const std::string& line) {
    const EntryFields l = SplitEntryLine(line, 4);
    for (const std::string& row : rows) {
        const EntryFields r = SplitEntryLine(row, 4);
        if (r[0] == l[0] && r[1] == l[1] && r[3] == l[3] && r[4] == l[4])
            return true;
    }
    return false;
}

void AppendLine(const std::filesystem::path& file, const std::string& line) {
    test::WriteAll(file, test::ReadAll(file) + line + "\r\n");
}

// CopyMove and the delete step by step: every file line through the rows, each check a
// full scan of tempfile.tmp and decheck.tmp. `mode` is "copy", "move" or "delete".
void ReferenceRun(Common& common, const std::filesystem::path& cfn, const std::string& mode,
                  const std::string& target, const std::vector<std::string>& rows) {
    common.DuplicateChoice.clear();
    const std::filesystem::path temp = common.workFile(kTempFile);
    const std::filesystem::path decheck = common.workFile(kDecheckFile);
    const std::string bytes = test::ReadAll(cfn);
    test::WriteAll(decheck, bytes);
    std::string header = bytes.substr(0, 5);
    header.resize(5, '\0');
    test::WriteAll(temp, header);
    const uint64_t offset = ReadEntryOffset(cfn);
    const auto lines = LinesFrom(bytes, kTocStart);
    size_t next = 0;
    while (next < lines.size()) {
        const auto& [line, behind] = lines[next++];
        AppendLine(temp, line);
        if (line.empty() && behind >= offset)
            break;
    }
    for (; next < lines.size(); ++next) {
        const std::string& line = lines[next].first;
        if (!SelectedByRows(rows, line)) {
            AppendLine(temp, line);
            continue;
        }
        if (mode == "delete")
            continue;
        const std::string id = line.substr(0, 8);
        if (mode == "copy") {
            AppendLine(temp, line);
            if (target == id)
                continue;
        }
        const std::string moved = target + (line.size() > 8 ? line.substr(8) : "");
        bool write = true;
        if (target != id)
            write = CheckDuplicate(common, temp, moved);
        if (write && target != id)
            write = CheckDuplicate(common, decheck, moved);
        if (write)
            AppendLine(temp, moved);
    }
    std::filesystem::remove(decheck);
    std::filesystem::rename(temp, cfn);
    UpdateEntryOffset(common, cfn);
}

std::string RandomLine(std::mt19937& random) {
    auto pick = [&](std::initializer_list<const char*> texts) {
        return std::string(texts.begin()[random() % texts.size()]);
    };
    switch (random() % 12) {
        case 0:
            return pick({"", "0000", "\r", "A\\"});
        case 1:
            return pick({"00000000", "00000001"}) + "\\" + pick({"a", "b"});
        default:
            return EntryLineOf(pick({"00000000", "00000001", "00000002"}),
                               {pick({"a", "b"}), pick({"1", "2", "3"}),
                                "c:", pick({"x", "x", "y"}), "0", "", pick({"d1", "d2"})});
    }
}

// A catalogue as CatalogueBytes writes it, now and then spoiled: a TOC line ended by LF
// alone or an empty line inside the TOC (with the entry offset behind the TOC or where it
// was), an entry offset off the TOC's end, no line end at the end.
std::string RandomCatalogue(std::mt19937& random, const std::vector<std::string>& lines) {
    std::string bytes = CatalogueBytes(kFolders, lines);
    const bool offsetFollows = random() % 2;
    auto moveOffset = [&](int by) {
        bytes.replace(1, 4, EncodeEntryOffset(DecodeEntryOffset(bytes.substr(1, 4)) + by));
    };
    switch (random() % 6) {
        case 0:
            bytes.erase(bytes.find("\r\n"), 1);
            moveOffset(offsetFollows ? -1 : 0);
            break;
        case 1:
            bytes.insert(bytes.find("B\\"), "\r\n");
            moveOffset(offsetFollows ? 2 : 0);
            break;
        case 2:
            moveOffset(static_cast<int>(random() % 7) - 3);
            break;
        case 3:
            if (bytes.ends_with("\r\n"))
                bytes.resize(bytes.size() - 2);
            break;
    }
    return bytes;
}

// The outcome of one run: the catalogue's bytes and the questions asked.
struct Outcome {
    std::string bytes;
    std::string asked;
    bool operator==(const Outcome&) const = default;
};

template <class Run>
Outcome RunWith(const std::string& catalogue, unsigned seed, Run run) {
    test::TempFolder folder;
    RandomScreen screen(seed);
    Common common(folder.path(), folder.path(), screen);
    const std::filesystem::path cfn = folder / "Document 1.tmp";
    test::WriteAll(cfn, catalogue);
    run(common, cfn);
    EXPECT_FALSE(std::filesystem::exists(common.workFile(kDecheckFile)));
    return {test::ReadAll(cfn), screen.asked};
}

TEST(CopyMove, WritesAndAsksAsTheFullChecksDoOnRandomCatalogues) {
    std::mt19937 random(20240611);
    const char* const kModes[] = {"copy", "move", "delete"};
    for (unsigned round = 0; round < 120; ++round) {
        // The rows are lines of the catalogue, as in the list, or now and then others.
        std::vector<std::string> lines;
        for (int i = static_cast<int>(random() % 12); i > 0; --i)
            lines.push_back(RandomLine(random));
        std::vector<std::string> rows;
        for (const std::string& line : lines) {
            if (random() % 3 == 0)
                rows.push_back(random() % 4 ? line : RandomLine(random));
        }
        const std::string catalogue = RandomCatalogue(random, lines);
        const std::string mode = kModes[random() % 3];
        const std::string target =
            std::string(random() % 2 ? "00000001" : "00000000") + (random() % 3 ? "\\" : "");
        SCOPED_TRACE("round " + std::to_string(round) + ", " + mode + " to " + target);
        SelectedRows selected;
        for (const std::string& row : rows)
            selected.add(row);
        const Outcome fast =
            RunWith(catalogue, round, [&](Common& common, const std::filesystem::path& cfn) {
                if (mode == "delete")
                    DeleteEntries(common, cfn, selected);
                else
                    CopyMove(common, cfn,
                             mode == "copy" ? EntryCopyMode::Copy : EntryCopyMode::Move, target,
                             selected, true);
            });
        const Outcome reference =
            RunWith(catalogue, round, [&](Common& common, const std::filesystem::path& cfn) {
                ReferenceRun(common, cfn, mode, target, rows);
            });
        ASSERT_EQ(fast, reference);
    }
}

}  // namespace
}  // namespace zvx
