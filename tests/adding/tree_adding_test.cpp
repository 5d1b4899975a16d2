#include "adding/tree_adding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "steady_screen.h"
#include "store/entry_line.h"
#include "store/entry_offset.h"
#include "store/toc.h"
#include "support/catalogue_bytes.h"
#include "support/entry_lines.h"
#include "support/fault_loop.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using Names = std::vector<std::string>;

// The files (and so their directories) under `root`, and a catalogue of the folder Old\.
template <class Environment = test::TestEnvironment>
struct TreeFixture {
    explicit TreeFixture(Names files = {"a.txt", "Rock/b.mp3", "Rock/Live/c.txt", "Pop/d.txt"}) {
        for (const std::string& file : files) {
            std::filesystem::create_directories((root / file).parent_path());
            test::WriteAll(root / file, "some bytes");
        }
        test::WriteAll(cfn, test::CatalogueBytes({{"Old\\", "kept", 10, "00000007"}}, {}));
        choices.root = root;
    }
    TreeAddingResult run() { return AddTree(env.common, cfn, choices); }
    Names paths() const {
        Names out;
        for (const TocGroup& group : ReadTocGroups(cfn))
            out.push_back(group.path);
        return out;
    }
    // The entry lines in TOC order.
    Names allLines() const {
        Names out;
        for (const TocGroup& group : ReadTocGroups(cfn))
            std::ranges::copy(test::FolderLines(cfn, group.id), std::back_inserter(out));
        return out;
    }
    // Entry names by folder ID.
    std::map<std::string, Names> entries() const {
        std::map<std::string, Names> out;
        for (const TocGroup& group : ReadTocGroups(cfn))
            for (const std::string& line : test::FolderLines(cfn, group.id))
                out[group.id].emplace_back(SplitEntryLine(line)[1]);
        return out;
    }

    Environment env;
    std::filesystem::path root = env.folder / "medium";
    std::filesystem::path cfn = env.folder / "doc.zvd";
    TreeAddingChoices choices;
};

TEST(AddTree, MirrorsTheTreeUnderANewParentalFolderAndARerunAsksForEachDuplicate) {
    TreeFixture f;
    f.choices.makeParental = true;
    f.choices.parentalName = "Disc";
    f.choices.realFolders = true;
    f.choices.topIcon = 4;
    f.choices.subIcon = 10;
    f.run();
    // The old folders stay in front; sub-directories follow in name order.
    EXPECT_EQ(f.paths(),
              (Names{"Old\\", "Disc\\", "Disc\\Pop\\", "Disc\\Rock\\", "Disc\\Rock\\Live\\"}));
    std::vector<TocGroup> toc = ReadTocGroups(f.cfn);
    EXPECT_EQ(toc[1].id, "00000008");
    EXPECT_EQ(toc[1].icon(), 4);
    EXPECT_EQ(toc[1].description(), f.root.string());
    EXPECT_EQ(toc[4].icon(), 10);
    EXPECT_EQ(toc[4].description(), (f.root / "Rock" / "Live").string());
    auto entries = f.entries();
    EXPECT_EQ(entries["00000008"], Names{"a.txt"});
    EXPECT_EQ(entries["00000009"], Names{"d.txt"});
    EXPECT_EQ(entries[toc[3].id], Names{"b.mp3"});
    EXPECT_EQ(entries[toc[4].id], Names{"c.txt"});
    EXPECT_EQ(ReadEntryOffset(f.cfn), FindTocEnd(f.cfn));

    const std::string before = test::ReadAll(f.cfn);
    f.choices.parentalName = "DISC";  // folders are found without regard to case
    f.env.screen.answerDuplicate("keepold");
    f.env.screen.answerDuplicate("keepold");
    f.env.screen.answerDuplicate("keepall");
    f.run();
    EXPECT_EQ(f.env.screen.duplicates.size(), 3u);
    EXPECT_EQ(test::ReadAll(f.cfn), before);
}

TEST(AddTree, TheChoicesDecideTheFoldersAndThePatternTheFiles) {
    {
        TreeFixture f;  // as root folder without any folder choice: nothing
        const std::string before = test::ReadAll(f.cfn);
        f.run();
        EXPECT_EQ(test::ReadAll(f.cfn), before);
        EXPECT_TRUE(f.env.screen.shown.empty());
    }
    {
        TreeFixture f;  // real folders without a parent leave the root's files out
        f.choices.realFolders = true;
        f.run();
        EXPECT_EQ(f.paths(), (Names{"Old\\", "Pop\\", "Rock\\", "Rock\\Live\\"}));
        EXPECT_EQ(f.allLines().size(), 3u);
    }
    {
        TreeFixture f;  // into the selected folder every file goes there
        f.choices.addAsSubData = true;
        f.choices.selectedFolderPath = "OLD";
        f.choices.pattern = "*.TXT";
        f.run();
        EXPECT_EQ(f.paths(), Names{"Old\\"});
        EXPECT_EQ(f.entries()["00000007"], (Names{"a.txt", "d.txt", "c.txt"}));
    }
    TreeFixture f;  // a pattern limits the files but not the folders
    f.choices.makeParental = true;
    f.choices.parentalName = "\\x";
    f.choices.realFolders = true;
    f.choices.pattern = "*.mp3";
    f.run();
    EXPECT_EQ(f.paths().size(), 5u);
    EXPECT_EQ(f.paths()[1], "\\x\\");
    EXPECT_EQ(f.allLines().size(), 1u);
}

TEST(AddTree, ANameWithALineBreakIsABlankAndIsFoundAgain) {
    TreeFixture f({"Pop/d.txt", "odd\nname/x\r\x01y.txt"});
    f.choices.realFolders = true;
    f.run();
    const std::string first = test::ReadAll(f.cfn);
    EXPECT_EQ(f.paths(), (Names{"Old\\", "Pop\\", "odd name\\"}));  // names sort by their bytes
    EXPECT_EQ(f.entries()[ReadTocGroups(f.cfn)[2].id], Names{"x  y.txt"});
    f.env.screen.answerDuplicate("keepall");
    f.run();
    EXPECT_EQ(test::ReadAll(f.cfn), first);
}

TEST(AddTree, AFolderOfTheVeryNameWinsOverOneThatDiffersInCase) {
    TreeFixture f({"Pop/a/x.txt", "Pop/B/x.txt"});
    test::WriteAll(f.cfn, test::CatalogueBytes({{"Pop\\", "", 10, "00000001"},
                                                {"Pop\\A\\", "", 10, "00000002"},
                                                {"Pop\\a\\", "", 10, "00000003"},
                                                {"Pop\\b\\", "", 10, "00000004"}},
                                               {}));
    f.choices.realFolders = true;
    f.run();
    auto entries = f.entries();
    EXPECT_TRUE(entries["00000002"].empty());
    EXPECT_EQ(entries["00000003"], Names{"x.txt"});
    EXPECT_EQ(entries["00000004"], Names{"x.txt"});  // only "b" exists
}

// A rerun over a tree with a changed file and a new directory: old folders reused,
// duplicates overwritten, a new folder merged into the TOC.
struct RerunFixture : TreeFixture<test::SteadyEnvironment> {
    RerunFixture() : TreeFixture({"a.txt", "Rock/b.txt", "Pop/c.txt"}) {
        choices.makeParental = true;
        choices.parentalName = "Disc";
        choices.realFolders = true;
        run();
        test::WriteAll(root / "a.txt", "changed bytes");
        std::filesystem::create_directory(root / "Jazz");
        test::WriteAll(root / "Jazz" / "d.txt", "new");
    }
    // The catalogue a rerun without faults leaves; the fixture stays as it was.
    std::string clean() {
        const std::string before = test::ReadAll(cfn);
        run();
        const std::string after = test::ReadAll(cfn);
        test::WriteAll(cfn, before);
        return after;
    }
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
            const Names old = f.allLines();
            const std::string before = test::ReadAll(f.cfn);
            f.run();
            const Names renewed = f.allLines();
            test::WriteAll(f.cfn, before);
            f.env.screen.errorAnswer = answer;
            InjectedFileFault armed(FileFault::Write, n, ENOSPC);
            const TreeAddingResult result = f.run();
            const std::vector<TocGroup> toc = ReadTocGroups(f.cfn);
            EXPECT_EQ(toc.size(), result.foldersMerged ? 5u : 4u);
            EXPECT_EQ(ReadEntryOffset(f.cfn), FindTocEnd(f.cfn));
            std::set<std::string> names;
            for (const std::string& line : f.allLines()) {
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
