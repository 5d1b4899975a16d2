#include <gtest/gtest.h>

#include "common/app_files.h"
#include "finding/result_row.h"
#include "finding/search_preparation.h"
#include "finding/search_run.h"
#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::CatalogueBytes;
using test::EntryLineOf;

const std::vector<test::FolderSpec> kFolders = {{"Music\\", "", 10, "00000001"},
                                                {"Music\\Rock\\", "", 10, "00000002"},
                                                {"Twice\\", "", 10, "00000001"}};
const std::string kPop = EntryLineOf("00000001", {"pop.mp3"});
const std::string kRock = EntryLineOf("00000002", {"rock.mp3"});
const std::string kLost = EntryLineOf("00000009", {"lost rock.mp3"});

struct RunBench {
    test::TestEnvironment env;
    std::vector<std::string> rows;
    ShowEntry show = [this](std::string_view tail, std::string_view id) {
        rows.push_back(ResultRowTag(id, tail));
    };

    RunBench() {
        const std::filesystem::path cfn = env.folder / "Document 1.tmp";
        test::WriteAll(cfn, CatalogueBytes(kFolders, {kPop, kRock, kLost}));
        SearchInit(env.common, cfn, true, SearchFolder{"Music\\Rock", "00000002"});
    }
    std::string result() { return test::ReadAll(env.common.workFile(kSearchResultFile)); }
};

SearchSettings Contains(std::string text) {
    return {0, 1, WordMode::ExactPhrase, false, std::move(text)};
}

TEST(NewSearch, WritesACatalogueOfTheSourcesTocAndTheLinesTaken) {
    RunBench bench;
    EXPECT_EQ(NewSearch(bench.env.common, SearchSourceOption::Entire, Contains("rock"), bench.show),
              2u);
    EXPECT_EQ(bench.result(), CatalogueBytes(kFolders, {kRock, kLost}));
    EXPECT_EQ(bench.rows, (std::vector<std::string>{kRock, kLost}));
    EXPECT_EQ(bench.env.screen.statuses.back(), "Resolving Folder IDs...");

    bench.env.changedCalls = 0;
    EXPECT_EQ(NewSearch(bench.env.common, SearchSourceOption::SubTree, Contains("mp3"), nullptr),
              1u);
    EXPECT_EQ(bench.result(), CatalogueBytes(kFolders, {kRock}));
    EXPECT_EQ(bench.env.changedCalls, 1) << "the result's fix-up marks the document changed";
}

TEST(RemoveFromResult, KeepsTheLinesOfTheLastResultTheSearchWouldNotTake) {
    RunBench bench;
    const std::string previous = [&] {
        NewSearch(bench.env.common, SearchSourceOption::Entire, Contains("mp3"), nullptr);
        return bench.result();
    }();
    EXPECT_EQ(RemoveFromResult(bench.env.common, SearchSourceOption::Folder, Contains("lost"),
                               bench.show),
              2u);
    EXPECT_EQ(test::ReadAll(bench.env.common.workFile(kSearchResultCopyFile)), previous);
    EXPECT_EQ(bench.result(), CatalogueBytes(kFolders, {kPop, kRock}));
    EXPECT_EQ(bench.rows, (std::vector<std::string>{kPop, kRock}));
}

TEST(FolderResolver, AnswersTheFirstGroupOfTheIdOrUnknown) {
    RunBench bench;
    const FolderResolver resolver(bench.env.common.workFile(kSearchFullFile));
    EXPECT_EQ(resolver.resolva("00000001"), "Music\\");
    EXPECT_EQ(resolver.resolva("00000002"), "Music\\Rock\\");
    EXPECT_EQ(resolver.resolva("00000009"), kUnresolvedFolder);
}

TEST(SearchResult, CounterClearAndExport) {
    EXPECT_EQ(FoundText(0), "Found: 0 Entries");
    EXPECT_EQ(FoundText(1), "Found: 1 Entry");
    EXPECT_EQ(FoundText(2), "Found: 2 Entries");

    RunBench bench;
    std::filesystem::create_directory(bench.env.folder / "plugins");
    ClearResult(bench.env.common);
    EXPECT_FALSE(std::filesystem::exists(bench.env.common.workFile(kSearchResultFile)));
    EXPECT_FALSE(CopyResultForExport(bench.env.common)) << "an empty result is no catalogue";
    NewSearch(bench.env.common, SearchSourceOption::Entire, Contains("pop"), nullptr);
    EXPECT_TRUE(CopyResultForExport(bench.env.common));
    EXPECT_EQ(test::ReadAll(bench.env.folder / "plugins" / "export.tmp"), bench.result());
}

TEST(ResultRowTexts, ShowTheResultListsFormsOfTheFields) {
    LoadedSettings settings;  // VIEWRENUMBERING on, level 1
    std::vector<std::string> fields = {
        "a.mp3", "1234567", "c:\\m", "ID", "1", "Disc", "01-02-2003", "Audio", "T",   "Ar", "Al",
        "G",     "P",       "S",     "3",  "0", "C",    "D",          "0",     "128", "0",  ""};
    const std::string line = EntryLineOf("00000001", fields);
    const auto texts = ResultRowTexts(std::string_view(line).substr(8), settings);
    EXPECT_EQ(texts[0], "a.mp3");
    EXPECT_EQ(texts[1], "<not resolved>");
    EXPECT_EQ(texts[2], "000 001 234 567");
    EXPECT_EQ(texts[5], "Yes");
    EXPECT_EQ(texts[15], "03");
    EXPECT_EQ(texts[16], "");
    EXPECT_EQ(texts[19], "n/a");
    EXPECT_EQ(texts[20], "128");
    EXPECT_EQ(texts[22], "n/a");

    // A size that is no number stands as it is; a short tail leaves its last columns empty.
    const auto shortRow = ResultRowTexts("\x01z.mp3\x01  big", settings);
    EXPECT_EQ(shortRow[2], "big");
    EXPECT_EQ(shortRow[5], "");
    EXPECT_EQ(SearchFieldChoices().size(), 23u);
    EXPECT_EQ(ResultColumnTitles()[1], "ZVX-Folder");
}

}  // namespace
}  // namespace zvx
