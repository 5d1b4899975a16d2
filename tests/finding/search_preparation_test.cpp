#include <gtest/gtest.h>

#include "finding/search_preparation.h"
#include "finding/search_words.h"
#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::CatalogueBytes;
using test::EntryLineOf;

const std::vector<test::FolderSpec> kFolders = {{"Music\\Rock\\", "", 10, "00000001"},
                                                {"MUSIC\\", "", 10, "00000000"},
                                                {"Music2\\", "", 10, "00000002"},
                                                {"music\\rock\\Live", "", 10, "00000003"},
                                                {"Other\\", "", 10, "00000004"}};
const std::string kRock = EntryLineOf("00000001", {"rock.mp3"});
const std::string kTop = EntryLineOf("00000000", {"top.mp3"});
const std::string kSibling = EntryLineOf("00000002", {"sibling.mp3"});
const std::string kLive = EntryLineOf("00000003", {"live.mp3"});

struct PreparationBench {
    test::TestEnvironment env;
    std::filesystem::path cfn = env.folder / "Document 1.tmp";
    std::vector<std::string> events;
    std::string original =
        CatalogueBytes(kFolders, {kRock, kTop, "0000000", kSibling, kLive, kRock});

    PreparationBench() {
        env.common.onPlugStart = [this](const std::string& name) { events.push_back(name); };
        test::WriteAll(cfn, original);
    }
    std::string file(const char* name) { return test::ReadAll(env.common.workFile(name)); }
};

TEST(SearchInit, SplitsTheSubTreeByPathPrefixAndTheFolderByItsId) {
    PreparationBench bench;
    SearchInit(bench.env.common, bench.cfn, true, SearchFolder{"MUSIC\\Rock", "00000001"});
    EXPECT_EQ(bench.file(kSearchFullFile), bench.original);
    // "Music2" is no sub-folder of "Music"; a path without its trailing "\" still counts.
    EXPECT_EQ(bench.file(kSearchTreeFile), CatalogueBytes(kFolders, {kRock, kLive, kRock}));
    EXPECT_EQ(bench.file(kSearchFolderFile), CatalogueBytes(kFolders, {kRock, kRock}));
    EXPECT_EQ(bench.events, std::vector<std::string>{"ZVXREFRESHS"});
    EXPECT_EQ(bench.env.changedCalls, 2) << "each header fix-up marks the document changed";
    EXPECT_EQ(bench.env.screen.statuses,
              (std::vector<std::string>{
                  "Preparing Search (Mode: Full ZVX)...",
                  "Preparing Search (Mode: Splitted ZVX - Creating TOCs)...",
                  "Preparing Search (Mode Splitted ZVX - Filtering Entries)...", ""}));

    SearchInit(bench.env.common, bench.cfn, true, SearchFolder{"Music", "00000000"});
    EXPECT_EQ(bench.file(kSearchTreeFile), CatalogueBytes(kFolders, {kRock, kTop, kLive, kRock}));
}

TEST(SearchInit, WithoutSplitOnlyCopiesAndWithoutNodeStopsBehindTheTocs) {
    PreparationBench bench;
    SearchInit(bench.env.common, bench.cfn, true, SearchFolder{"Music", "00000000"});
    SearchInit(bench.env.common, bench.cfn, false, SearchFolder{"Music", "00000000"});
    EXPECT_EQ(bench.file(kSearchFullFile), bench.original);
    EXPECT_FALSE(std::filesystem::exists(bench.env.common.workFile(kSearchTreeFile)));
    EXPECT_EQ(bench.env.changedCalls, 2);

    SearchInit(bench.env.common, bench.cfn, true, std::nullopt);
    const std::string head = CatalogueBytes(kFolders, {});
    EXPECT_EQ(bench.file(kSearchTreeFile), head);
    EXPECT_EQ(bench.file(kSearchFolderFile), head);
    EXPECT_EQ(bench.env.changedCalls, 2) << "no fix-up without a node";
    EXPECT_EQ(bench.events.size(), 2u);
}

TEST(SearchInit, MoreThan64001FoldersInTheTreeIsFatal) {
    PreparationBench bench;
    std::vector<test::FolderSpec> folders;
    for (int i = 0; i <= 64001; ++i)
        folders.push_back({"A\\" + std::to_string(i) + "\\", "", 10, "x"});
    test::WriteAll(bench.cfn, CatalogueBytes(folders, {}));
    EXPECT_NO_THROW(SearchInit(bench.env.common, bench.cfn, true, SearchFolder{"A\\0", "x"}));
    EXPECT_THROW(SearchInit(bench.env.common, bench.cfn, true, SearchFolder{"A", "x"}),
                 SearchOverflow);
}

}  // namespace
}  // namespace zvx
