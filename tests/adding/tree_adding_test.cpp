#include "adding/tree_adding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "steady_screen.h"
#include "store/entry_line.h"
#include "store/entry_offset.h"
#include "store/folder_listing.h"
#include "store/toc.h"
#include "support/catalogue_bytes.h"
#include "support/fault_loop.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

// root/a.txt, root/Rock/b.mp3, root/Rock/Live/c.txt, root/Pop/d.txt
struct TreeFixture {
    TreeFixture() {
        for (const char* dir : {"Rock/Live", "Pop"})
            std::filesystem::create_directories(root / dir);
        for (const char* file : {"a.txt", "Rock/b.mp3", "Rock/Live/c.txt", "Pop/d.txt"})
            test::WriteAll(root / file, "some bytes");
        test::WriteAll(cfn, test::CatalogueBytes({{"Old\\", "kept", 10, "00000007"}}, {}));
        choices.root = root;
        choices.detag = false;
        choices.ownDescription = false;
    }
    void run() {
        AddTree(env.common, cfn, choices);
        KillTempFiles(env.common);
    }
    std::vector<TocGroup> toc() const { return ReadTocGroups(cfn); }
    // Entry names by folder ID.
    std::map<std::string, std::vector<std::string>> entries() const {
        std::map<std::string, std::vector<std::string>> out;
        for (const TocGroup& group : toc())
            ListFolderEntries(cfn, group.id, [&](std::string_view line) {
                out[group.id].emplace_back(SplitEntryLine(line)[1]);
            });
        return out;
    }

    size_t entryCount() const {
        size_t total = 0;
        for (const auto& [id, names] : entries())
            total += names.size();
        return total;
    }

    test::TestEnvironment env;
    std::filesystem::path root = env.folder / "medium";
    std::filesystem::path cfn = env.folder / "doc.zvd";
    TreeAddingChoices choices;
};

TEST(AddTree, MirrorsTheTreeUnderANewParentalFolder) {
    TreeFixture f;
    f.choices.makeParental = true;
    f.choices.parentalName = "Disc";
    f.choices.realFolders = true;
    f.choices.topIcon = 4;
    f.choices.subIcon = 10;
    f.run();
    std::vector<TocGroup> toc = f.toc();
    ASSERT_EQ(toc.size(), 5u);
    EXPECT_EQ(toc[0].path, "Old\\");  // the old folders stay in front
    EXPECT_EQ(toc[1].path, "Disc\\");
    EXPECT_EQ(toc[1].id, "00000008");
    EXPECT_EQ(toc[1].icon(), 4);
    EXPECT_EQ(toc[1].description(), f.root.string());
    EXPECT_EQ(toc[2].path, "Disc\\Pop\\");  // sub-directories in name order
    EXPECT_EQ(toc[3].path, "Disc\\Rock\\");
    EXPECT_EQ(toc[4].path, "Disc\\Rock\\Live\\");
    EXPECT_EQ(toc[4].icon(), 10);
    EXPECT_EQ(toc[4].description(), (f.root / "Rock" / "Live").string());
    auto entries = f.entries();
    EXPECT_EQ(entries["00000008"], std::vector<std::string>{"a.txt"});
    EXPECT_EQ(entries["00000009"], std::vector<std::string>{"d.txt"});
    EXPECT_EQ(entries[toc[3].id], std::vector<std::string>{"b.mp3"});
    EXPECT_EQ(entries[toc[4].id], std::vector<std::string>{"c.txt"});
    EXPECT_EQ(ReadEntryOffset(f.cfn), FindTocEnd(f.cfn));
    EXPECT_FALSE(std::filesystem::exists(f.env.folder / "temptoc.tmp"));
}

TEST(AddTree, ARerunReusesTheFoldersAndAsksForEachDuplicate) {
    TreeFixture f;
    f.choices.makeParental = true;
    f.choices.parentalName = "Disc";
    f.choices.realFolders = true;
    f.run();
    const std::string before = test::ReadAll(f.cfn);
    f.choices.parentalName = "DISC";  // folders are found without regard to case
    f.env.screen.answerDuplicate("keepold");
    f.env.screen.answerDuplicate("keepold");
    f.env.screen.answerDuplicate("keepall");
    f.run();
    EXPECT_EQ(f.env.screen.duplicates.size(), 3u);
    EXPECT_EQ(test::ReadAll(f.cfn), before);
}

TEST(AddTree, AsRootFolderWithoutAnyFolderChoiceAddsNothing) {
    TreeFixture f;
    const std::string before = test::ReadAll(f.cfn);
    f.run();
    EXPECT_EQ(test::ReadAll(f.cfn), before);
    EXPECT_TRUE(f.env.screen.shown.empty());
}

TEST(AddTree, RealFoldersWithoutAParentLeaveTheRootFilesOut) {
    TreeFixture f;
    f.choices.realFolders = true;
    f.run();
    std::vector<TocGroup> toc = f.toc();
    ASSERT_EQ(toc.size(), 4u);
    EXPECT_EQ(toc[1].path, "Pop\\");
    EXPECT_EQ(toc[3].path, "Rock\\Live\\");
    EXPECT_EQ(f.entryCount(), 3u);
}

TEST(AddTree, IntoTheSelectedFolderEveryFileGoesThere) {
    TreeFixture f;
    f.choices.addAsSubData = true;
    f.choices.selectedFolderPath = "OLD";
    f.choices.pattern = "*.TXT";
    f.run();
    EXPECT_EQ(f.toc().size(), 1u);
    EXPECT_EQ(f.entries()["00000007"], (std::vector<std::string>{"a.txt", "d.txt", "c.txt"}));
}

TEST(AddTree, APatternLimitsFilesButNotFolders) {
    TreeFixture f;
    f.choices.makeParental = true;
    f.choices.parentalName = "\\x";
    f.choices.realFolders = true;
    f.choices.pattern = "*.mp3";
    f.run();
    std::vector<TocGroup> toc = f.toc();
    ASSERT_EQ(toc.size(), 5u);
    EXPECT_EQ(toc[1].path, "\\x\\");
    EXPECT_EQ(f.entryCount(), 1u);
}

TEST(AddTree, ANameWithALineBreakIsABlankAndIsFoundAgain) {
    TreeFixture f;
    std::filesystem::create_directory(f.root / "odd\nname");
    test::WriteAll(f.root / "odd\nname" / "x\r\x01y.txt", "z");
    f.choices.realFolders = true;
    f.run();
    const std::string first = test::ReadAll(f.cfn);
    std::vector<TocGroup> toc = f.toc();
    ASSERT_EQ(toc.size(), 5u);
    EXPECT_EQ(toc[4].path, "odd name\\");  // names sort by their bytes
    EXPECT_EQ(f.entries()[toc[4].id], std::vector<std::string>{"x  y.txt"});
    f.env.screen.answerDuplicate("keepall");
    f.run();
    EXPECT_EQ(test::ReadAll(f.cfn), first);
}

TEST(AddTree, AFolderOfTheVeryNameWinsOverOneThatDiffersInCase) {
    TreeFixture f;
    for (const char* dir : {"a", "B"}) {
        std::filesystem::create_directory(f.root / "Pop" / dir);
        test::WriteAll(f.root / "Pop" / dir / "x.txt", "x");
    }
    test::WriteAll(f.cfn, test::CatalogueBytes({{"Pop\\", "", 10, "00000001"},
                                                {"Pop\\A\\", "", 10, "00000002"},
                                                {"Pop\\a\\", "", 10, "00000003"},
                                                {"Pop\\b\\", "", 10, "00000004"}},
                                               {}));
    f.choices.realFolders = true;
    f.choices.pattern = "x.txt";
    f.run();
    auto entries = f.entries();
    EXPECT_TRUE(entries["00000002"].empty());
    EXPECT_EQ(entries["00000003"], std::vector<std::string>{"x.txt"});
    EXPECT_EQ(entries["00000004"], std::vector<std::string>{"x.txt"});  // only "b" exists
}

// A rerun over a tree with a changed file and a new directory: old folders reused,
// duplicates overwritten, a new folder merged into the TOC.
struct RerunFixture {
    RerunFixture() {
        for (const char* dir : {"Rock", "Pop"})
            std::filesystem::create_directories(root / dir);
        for (const char* file : {"a.txt", "Rock/b.txt", "Pop/c.txt"})
            test::WriteAll(root / file, "some bytes");
        test::WriteAll(cfn, test::CatalogueBytes({{"Old\\", "kept", 10, "00000007"}}, {}));
        choices.root = root;
        choices.makeParental = true;
        choices.parentalName = "Disc";
        choices.realFolders = true;
        AddTree(env.common, cfn, choices);
        test::WriteAll(root / "a.txt", "changed bytes");
        std::filesystem::create_directory(root / "Jazz");
        test::WriteAll(root / "Jazz" / "d.txt", "new");
    }
    TreeAddingResult run() { return AddTree(env.common, cfn, choices); }
    // The catalogue a rerun without faults leaves; the fixture stays as it was.
    std::string clean() {
        const std::string before = test::ReadAll(cfn);
        run();
        const std::string after = test::ReadAll(cfn);
        test::WriteAll(cfn, before);
        return after;
    }
    std::vector<std::string> entryLines() const {
        std::vector<std::string> lines;
        for (const TocGroup& group : ReadTocGroups(cfn))
            ListFolderEntries(cfn, group.id,
                              [&](std::string_view line) { lines.emplace_back(line); });
        return lines;
    }

    test::SteadyEnvironment env;
    std::filesystem::path root = env.folder / "medium";
    std::filesystem::path cfn = env.folder / "doc.zvd";
    TreeAddingChoices choices;
};

TEST(AddTree, EveryWriteOfTheRunIsAskedAboutAndRetriedWithoutLoss) {
    for (const test::FaultKind& fault : test::kFaultKinds) {
        EXPECT_GE(test::ForEachFault([&](int n) {
                      RerunFixture f;
                      const std::string expected = f.clean();
                      InjectedFileFault armed(fault.kind, n, fault.err);
                      const TreeAddingResult result = f.run();
                      EXPECT_TRUE(result.entriesWritten && result.foldersMerged);
                      EXPECT_EQ(f.env.screen.errorsAt.size(), armed.fired() ? 1u : 0u);
                      EXPECT_EQ(test::ReadAll(f.cfn), expected);
                      return armed.fired();
                  }),
                  5);
    }
}

// Given up, a write leaves a catalogue that reads whole: the old TOC in front, no piece
// of a line, and every file that was in it still in it.
TEST(AddTree, AWriteGivenUpLosesNothingThatWasAdded) {
    for (MsgAnswer answer : {MsgAnswer::Ignore, MsgAnswer::Abort}) {
        test::ForEachFault([&](int n) {
            RerunFixture f;
            const std::vector<std::string> old = f.entryLines();
            const std::string before = test::ReadAll(f.cfn);
            f.run();
            const std::vector<std::string> renewed = f.entryLines();
            test::WriteAll(f.cfn, before);
            f.env.screen.errorAnswer = answer;
            InjectedFileFault armed(FileFault::Write, n, ENOSPC);
            const TreeAddingResult result = f.run();
            const std::vector<TocGroup> toc = ReadTocGroups(f.cfn);
            EXPECT_EQ(toc.size(), result.foldersMerged ? 5u : 4u);
            EXPECT_EQ(ReadEntryOffset(f.cfn), FindTocEnd(f.cfn));
            std::set<std::string> names;
            for (const std::string& line : f.entryLines()) {
                EXPECT_TRUE(std::ranges::count(old, line) + std::ranges::count(renewed, line));
                names.emplace(SplitEntryLine(line)[1]);
            }
            EXPECT_TRUE(names.contains("a.txt") && names.contains("b.txt") &&
                        names.contains("c.txt"));
            EXPECT_TRUE(test::ReadAll(f.cfn).ends_with("\r\n"));
            return armed.fired();
        });
    }
}

}  // namespace
}  // namespace zvx
