#include "metadata/file_content_summary.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::TempFolder;
using test::WriteAll;

TEST(FileContentSummary, FirstFiveLinesOfATextFile) {
    TempFolder folder;
    WriteAll(folder / "a.txt", "\r\n\nthree\r\nfour\nfive\r\nsix\nseven\neight\r\n");
    // The two leading empty lines count towards the five, but do not show.
    EXPECT_EQ(FileContentSummary(folder / "a.txt", "txt"), "three\rfour\rfive");

    // An empty line after the first text stays; a last line without a break counts.
    WriteAll(folder / "b.txt", "one\r\n\r\nthree");
    EXPECT_EQ(FileContentSummary(folder / "b.txt", "TXT"), "one\r\rthree");

    WriteAll(folder / "empty.txt", "");
    EXPECT_EQ(FileContentSummary(folder / "empty.txt", "txt"), "");
}

TEST(FileContentSummary, OtherCategoriesAndFailures) {
    TempFolder folder;
    WriteAll(folder / "a.gif", "GIF89a");
    EXPECT_EQ(FileContentSummary(folder / "a.gif", "image"), "");
    EXPECT_EQ(FileContentSummary(folder / "a.gif", ""), "");
    // A category without a reader never touches the file.
    EXPECT_EQ(FileContentSummary(folder / "gone.zip", "compressed"), "");

    const auto gone = folder / "gone.txt";
    EXPECT_EQ(FileContentSummary(gone, "Txt"),
              "Error while retrieving ZVX-Content information for: " + gone.string() + " (txt)");
}

}  // namespace
}  // namespace zvx
