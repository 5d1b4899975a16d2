#include "adding/insert_run.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "adding/insert_rows.h"
#include "store/folder_listing.h"
#include "support/catalogue_bytes.h"
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

    size_t count = 0;
    ListFolderEntries(cfn, "00000003", [&](std::string_view) { ++count; });
    EXPECT_EQ(count, 2u);
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
    size_t count = 0;
    ListFolderEntries(cfn, "00000000", [&](std::string_view) { ++count; });
    EXPECT_EQ(count, 1u);
    EXPECT_EQ(env.screen.duplicates.size(), 1u);
    EXPECT_EQ(env.screen.statuses.back(), "");
}

}  // namespace
}  // namespace zvx
