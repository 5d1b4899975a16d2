#include "common/summary_text.h"

#include <gtest/gtest.h>

namespace zvx {
namespace {

TEST(SizeText, BytesThenUnitsWithTwoDecimalsCut) {
    EXPECT_EQ(SizeText(1024), "1024 B");
    EXPECT_EQ(SizeText(1025), "1 KB");
    EXPECT_EQ(SizeText(1536), "1.5 KB");
    EXPECT_EQ(SizeText(2047), "1.99 KB");  // 1.999 is cut, not rounded up
    EXPECT_EQ(SizeText(1024.0 * 1024), "1024 KB");
    EXPECT_EQ(SizeText(1024.0 * 1024 * 3), "3 MB");
    EXPECT_EQ(SizeText(1024.0 * 1024 * 1024 * 5), "5 GB");
}

TEST(Summarize, CountsEntriesAndTheSizeOfTheSelectedOnes) {
    SelectionTotals one;
    one.add("1000", false);
    EXPECT_EQ(summarize(one), "1 entry (1000 B)");

    SelectionTotals none;
    EXPECT_EQ(summarize(none), "0 entries");

    SelectionTotals noSizes;
    noSizes.add("", false);
    noSizes.add("abc", false);
    EXPECT_EQ(summarize(noSizes), "2 entries");

    SelectionTotals totals;
    totals.add("2048", true);
    totals.add("100000", false);
    totals.add("512 bytes", true);
    EXPECT_EQ(summarize(totals), "2 of 3 entries selected (2.5 KB)");

    SelectionTotals selectedEmpty;
    selectedEmpty.add("0", true);
    selectedEmpty.add("1", false);
    EXPECT_EQ(summarize(selectedEmpty), "1 of 2 entries selected");
}

}  // namespace
}  // namespace zvx
