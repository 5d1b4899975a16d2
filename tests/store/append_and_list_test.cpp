#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "store/append_entry.h"
#include "store/duplicate_check.h"
#include "store/entry_offset.h"
#include "store/folder_listing.h"
#include "store/new_catalogue.h"
#include "support/catalogue_bytes.h"
#include "support/entry_lines.h"
#include "support/fault_loop.h"
#include "support/file_error_number.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::FolderLines;

TEST(AppendEntry, AppendsOneLineInTheCaseModeAndLeavesHeaderAndTocAlone) {
    test::TestEnvironment env;
    auto file = env.folder / "doc.zvx";
    test::WriteAll(file, test::CatalogueBytes({{"Music\\", "", 10, "00000000"}}, {}));
    const std::string before = test::ReadAll(file);
    EntryValues v;
    v.title = "the BEST of_rock";
    v.genre = "rock";
    v.style = "soft rock";
    v.track = "5";
    env.common.settings.caseMode = 2;
    EXPECT_TRUE(AppendEntry(env.common, file, "00000000", "C:\\m\\a.mp3", v, false, false));
    EXPECT_EQ(env.changedCalls, 1);
    const std::string after = test::ReadAll(file);
    EXPECT_EQ(after.substr(0, before.size()), before);
    EXPECT_EQ(after.substr(after.size() - 2), "\r\n");
    // "_" splits words in new entries; the genre and style keep their case.
    EXPECT_EQ(test::Fields(FolderLines(file, "00000000").at(0), {9, 12, 14, 15}),
              "The Best Of_Rock|rock|soft rock|05|");

    env.common.settings.caseMode = 0;
    env.common.settings.renumberingLevel = 3;
    v.title = "mIxEd";
    v.track = "12";
    AppendEntry(env.common, file, "00000000", "c:\\b.mp3", v, false, false);
    EXPECT_EQ(test::Fields(FolderLines(file, "00000000").at(1), {9, 15}), "mIxEd|0012|");
}

// Outside a run a line is appended at once; an overwritten old line is struck only after
// the new one is written, so a failure leaves the file as it was and a repeat writes once.
TEST(AppendEntry, AFailedAppendOrStrikeLeavesTheCatalogueAsItWas) {
    const std::string old = test::EntryLineOf("00000000", {"a.mp3", "1", "c:\\m", ""});
    const std::string other = test::EntryLineOf("00000000", {"b.mp3", "1", "c:\\m", ""});
    for (const test::FaultKind& fault : test::kFaultKinds) {
        for (bool overwrite : {false, true}) {
            EXPECT_GE(
                test::ForEachFault([&](int n) {
                    test::TestEnvironment env;
                    env.common.DuplicateChoice = kDelAll;
                    const auto file = env.folder / "doc.zvx";
                    const auto toc = std::vector<test::FolderSpec>{{"M\\", "", 10, "00000000"}};
                    test::WriteAll(file, test::CatalogueBytes(toc, {old, other}));
                    const std::string before = test::ReadAll(file);
                    const auto append = [&] {
                        return AppendEntry(env.common, file, "00000000", "c:\\m\\a.mp3", {}, false,
                                           overwrite);
                    };
                    InjectedFileFault armed(fault.kind, n, fault.err);
                    const bool failed = test::ErrorNumberOf(append) != 0;
                    EXPECT_EQ(failed, armed.fired());
                    if (!failed)
                        return false;
                    EXPECT_EQ(test::ReadAll(file), before);
                    append();
                    const std::string added = FolderLines(file, "00000000").back();
                    const auto kept = overwrite ? std::vector<std::string>{other, added}
                                                : std::vector<std::string>{old, other, added};
                    EXPECT_EQ(test::ReadAll(file), test::CatalogueBytes(toc, kept));
                    return true;
                }),
                overwrite ? 2 : 1);
        }
    }
}

TEST(FolderListing, FindsAFoldersLinesFromTheEntryOffset) {
    test::TestEnvironment env;
    auto file = env.folder / "doc.zvx";
    std::string a1 = test::EntryLineOf("00000001", {"a1"});
    std::string b1 = test::EntryLineOf("00000002", {"b1"});
    std::string a2 = test::EntryLineOf("00000001", {"a2"});
    // The TOC's own ID line "00000001" must not be taken for an entry.
    std::string bytes = test::CatalogueBytes(
        {{"a\\", "", 10, "00000001"}, {"b\\", "", 10, "00000002"}}, {a1, "short", b1, "", a2});
    bytes.erase(bytes.size() - 2);  // the last line has no CR LF
    test::WriteAll(file, bytes);
    EXPECT_EQ(FolderLines(file, "00000001"), (std::vector<std::string>{a1, a2}));
    EXPECT_EQ(FolderLines(file, "00000002"), (std::vector<std::string>{b1}));
    EXPECT_TRUE(FolderLines(file, "00000009").empty());
}

TEST(FolderListing, AHugeLineIsReadWhole) {
    test::TestEnvironment env;
    auto file = env.folder / "huge.zvx";
    std::string huge = test::EntryLineOf("00000000", {std::string(10 << 20, 'x')});
    test::WriteAll(file, test::CatalogueBytes({}, {huge, test::EntryLineOf("00000000", {"b"})}));
    auto lines = FolderLines(file, "00000000");
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].size(), huge.size());
}

}  // namespace
}  // namespace zvx
