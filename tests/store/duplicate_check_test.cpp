#include "store/duplicate_check.h"

#include <gtest/gtest.h>

#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

class DuplicateCheck : public ::testing::Test {
  protected:
    void SetUp() override {
        file = env.folder / "doc.zvx";
        test::WriteAll(file, test::CatalogueBytes({{"a\\", "", 10, "00000001"}},
                                                  {old, test::EntryLineOf("00000001", {"b.mp3"})}));
        original = test::ReadAll(file);
    }
    test::TestEnvironment env;
    std::filesystem::path file;
    std::string original;
    // Same folder, name, path and medium ID; size and date differ.
    std::string old =
        test::EntryLineOf("00000001", {"a.mp3", "10", "c:\\m", "CD1", "0", "", "01-01-2000"});
    std::string added =
        test::EntryLineOf("00000001", {"a.mp3", "99", "c:\\m", "CD1", "0", "", "02-02-2002"});
};

TEST_F(DuplicateCheck, KeepOldDropsTheNewLineAndAsksWithBothEntries) {
    env.screen.answerDuplicate(kKeepOld);
    EXPECT_FALSE(CheckDuplicate(env.common, file, added));
    EXPECT_EQ(test::ReadAll(file), original);
    ASSERT_EQ(env.screen.duplicates.size(), 1u);
    const DuplicateQuestion& q = env.screen.duplicates[0];
    EXPECT_EQ(q.oldname + "|" + q.oldsize + "|" + q.olddate + "|" + q.newsize + "|" + q.newdate,
              "a.mp3|10|01-01-2000|99|02-02-2002");
    EXPECT_EQ(env.common.DuplicateChoice, kKeepOld);
}

TEST_F(DuplicateCheck, OverwriteStrikesOutTheOldLine) {
    env.screen.answerDuplicate(kDelOld);
    EXPECT_TRUE(CheckDuplicate(env.common, file, added));
    EXPECT_EQ(test::ReadAll(file),
              test::CatalogueBytes({{"a\\", "", 10, "00000001"}},
                                   {test::EntryLineOf("00000001", {"b.mp3"})}));
    EXPECT_FALSE(std::filesystem::exists(env.folder / "tempfil2.tmp"));
}

TEST_F(DuplicateCheck, AllAnswersAskNoMoreWithinTheRunAndOtherFolderNameOrMediumIsNoDuplicate) {
    env.common.DuplicateChoice = kKeepAll;
    EXPECT_FALSE(CheckDuplicate(env.common, file, added));
    env.common.DuplicateChoice = kDelAll;
    EXPECT_TRUE(CheckDuplicate(env.common, file, added));
    // Another folder, name or medium is no duplicate.
    EXPECT_TRUE(CheckDuplicate(env.common, file,
                               test::EntryLineOf("00000002", {"a.mp3", "", "c:\\m", "CD1"})));
    EXPECT_TRUE(CheckDuplicate(env.common, file,
                               test::EntryLineOf("00000001", {"a.mp3", "", "c:\\m", "CD2"})));
    EXPECT_TRUE(CheckDuplicate(env.common, file,
                               test::EntryLineOf("00000001", {"A.mp3", "", "c:\\m", "CD1"})));
    EXPECT_TRUE(env.screen.shown.empty());
}

TEST_F(DuplicateCheck, KeepOldAsksAgainAtASecondHit) {
    test::WriteAll(file, test::CatalogueBytes({}, {old, old}));
    env.screen.answerDuplicate(kKeepOld);
    env.screen.answerDuplicate(kKeepOld);
    EXPECT_FALSE(CheckDuplicate(env.common, file, added));
    EXPECT_EQ(env.screen.duplicates.size(), 2u);
}

TEST_F(DuplicateCheck, TheSeenCopyIsStruckOutSilently) {
    auto decheck = env.folder / "decheck.tmp";
    test::WriteAll(decheck, test::CatalogueBytes({}, {old, old}));
    EXPECT_TRUE(CheckDuplicate(env.common, decheck, added));
    EXPECT_EQ(test::ReadAll(decheck), test::CatalogueBytes({}, {old}));  // only the first hit
    EXPECT_TRUE(env.screen.shown.empty());
}

}  // namespace
}  // namespace zvx
