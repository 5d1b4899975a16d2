#include "adding/tree_adding.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "store/entry_line.h"
#include "store/entry_offset.h"
#include "store/folder_listing.h"
#include "store/toc.h"
#include "support/catalogue_bytes.h"
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

}  // namespace
}  // namespace zvx
