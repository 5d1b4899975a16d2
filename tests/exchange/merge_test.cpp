#include <gtest/gtest.h>

#include "exchange/merge.h"
#include "platform/file_error.h"
#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx::test {
namespace {

class MergeTest : public ::testing::Test {
  protected:
    MergeResult merge(const std::string& targetBytes, const std::string& sourceBytes,
                      const std::string& targetPath) {
        WriteAll(target, targetBytes);
        WriteAll(source, sourceBytes);
        return MergeCatalogue(env.common, target, source, targetPath);
    }

    TestEnvironment env;
    std::filesystem::path target = env.folder / "target.zvx";
    std::filesystem::path source = env.folder / "imported.tmp";
};

const std::string kMusic =
    CatalogueBytes({{"Music\\", "", 10, "00000000"}, {"Music\\Rock\\", "Loud", 4, "00000003"}},
                   {EntryLineOf("00000003", {"r.mp3"}), EntryLineOf("00000000", {"m.mp3"})});

TEST_F(MergeTest, AnEmptySourceOnlyZeroesTheVersionByte) {
    MergeResult result = merge(kMusic, CatalogueBytes({}, {}), "");
    EXPECT_TRUE(result.merged);
    EXPECT_EQ(result.folders + result.entries, 0u);
    std::string expected = kMusic;
    expected[0] = '\0';
    EXPECT_EQ(ReadAll(target), expected);
    EXPECT_FALSE(std::filesystem::exists(source));
}

TEST_F(MergeTest, ImportingADocumentIntoItselfDoublesItsTreeAndAThirdTimeAgain) {
    merge(kMusic, kMusic, "\\");
    const std::string twice = ReadAll(target);
    EXPECT_EQ(twice, CatalogueBytes(
                         {{"Music\\", "", 10, "00000000"},
                          {"Music\\Rock\\", "Loud", 4, "00000003"},
                          {"Music (2)\\", "", 10, "00000004"},
                          {"Music (2)\\Rock\\", "Loud", 4, "00000005"}},
                         {EntryLineOf("00000003", {"r.mp3"}), EntryLineOf("00000000", {"m.mp3"}),
                          EntryLineOf("00000005", {"r.mp3"}), EntryLineOf("00000004", {"m.mp3"})},
                         0));
    MergeResult third = merge(twice, kMusic, "");
    EXPECT_EQ(third.folders, 2u);
    EXPECT_EQ(third.entries, 2u);
    const std::string thrice = ReadAll(target);
    EXPECT_NE(thrice.find("Music (2) (2)\\\r\n2\r\n00000006\r\n"
                          "Music (2) (2)\\Rock\\\r\nLoud,\r\n00000007\r\n\r\n"),
              std::string::npos);
}

// The first name is compared exactly with the target's paths below the target path, and
// every description gains the target path.
TEST_F(MergeTest, UnderAFolderOnlyAnExactClashRenames) {
    const std::string sourceBytes =
        CatalogueBytes({{"Rock\\Old\\", "Vinyl", 10, "00000000"}, {"Jazz\\", "", 12, "00000001"}},
                       {EntryLineOf("00000001", {"j.mp3"}), EntryLineOf("00000000", {"o.mp3"})});
    const std::string targetBytes = CatalogueBytes({{"Music\\", "", 10, "00000000"},
                                                    {"Music\\Rock\\", "", 10, "00000001"},
                                                    {"Music\\jazz\\", "", 10, "00000002"},
                                                    {"Jazz\\", "", 10, "00000003"}},
                                                   {});
    merge(targetBytes, sourceBytes, "Music");
    EXPECT_EQ(ReadAll(target),
              CatalogueBytes(
                  {{"Music\\", "", 10, "00000000"},
                   {"Music\\Rock\\", "", 10, "00000001"},
                   {"Music\\jazz\\", "", 10, "00000002"},
                   {"Jazz\\", "", 10, "00000003"},
                   {"Music\\Rock (2)\\Old\\", "Music\\Vinyl", 10, "00000004"},
                   {"Music\\Jazz\\", "Music\\", 12, "00000005"}},
                  {EntryLineOf("00000005", {"j.mp3"}), EntryLineOf("00000004", {"o.mp3"})}, 0));
}

// A source ID that stands twice keeps its first replacement; a line of an unknown folder
// joins the folder of the line before, and before any such line it gets eight blanks.
TEST_F(MergeTest, IntoAnEmptyTargetEntriesFollowTheirFolderOrTheLineBefore) {
    const std::string sourceBytes =
        CatalogueBytes({{"A\\", "", 10, "00000007"}, {"B\\", "", 10, "00000007"}},
                       {EntryLineOf("zzzzzzzz", {"lost"}), EntryLineOf("00000007", {"a1"}),
                        EntryLineOf("00000009", {"stray"}), "short"});
    MergeResult result = merge(CatalogueBytes({}, {}), sourceBytes, "");
    EXPECT_EQ(result.folders, 2u);
    EXPECT_EQ(result.entries, 4u);
    EXPECT_EQ(ReadAll(target),
              CatalogueBytes({{"A\\", "", 10, "00000000"}, {"B\\", "", 10, "00000001"}},
                             {EntryLineOf("        ", {"lost"}), EntryLineOf("00000000", {"a1"}),
                              EntryLineOf("00000000", {"stray"}), "00000000"},
                             0));
}

TEST_F(MergeTest, IdsBeyondTheLimitAreRefusedAndNothingChanges) {
    const std::string full = CatalogueBytes({{"Top\\", "", 10, "99999999"}}, {});
    env.screen.answerMessage(MsgAnswer::Ok);
    EXPECT_FALSE(merge(full, kMusic, "").merged);
    ASSERT_EQ(env.screen.shown.size(), 1u);
    EXPECT_EQ(env.screen.shown[0].caption, "Error");
    EXPECT_EQ(env.screen.shown[0].text, "Error during import: New TOC-IDs are too high.");
    EXPECT_EQ(env.screen.shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(ReadAll(target), full);
    EXPECT_EQ(ReadAll(source), kMusic);
}

TEST_F(MergeTest, AMissingSourceIsAFileErrorThatLeavesTheTarget) {
    WriteAll(target, kMusic);
    EXPECT_THROW(MergeCatalogue(env.common, target, env.folder / "none.tmp", ""), FileError);
    EXPECT_EQ(ReadAll(target), kMusic);
}

}  // namespace
}  // namespace zvx::test
