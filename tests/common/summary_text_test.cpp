#include "common/summary_text.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>

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
    // Rows of a size text and whether the row is selected.
    auto summary = [](std::initializer_list<std::pair<const char*, bool>> rows) {
        SelectionTotals totals;
        for (auto [size, selected] : rows)
            totals.add(size, selected);
        return summarize(totals);
    };
    EXPECT_EQ(summary({{"1000", false}}), "1 entry (1000 B)");
    EXPECT_EQ(summary({}), "0 entries");
    EXPECT_EQ(summary({{"", false}, {"abc", false}}), "2 entries");
    EXPECT_EQ(summary({{"2048", true}, {"100000", false}, {"512 bytes", true}}),
              "2 of 3 entries selected (2.5 KB)");
    EXPECT_EQ(summary({{"0", true}, {"1", false}}), "1 of 2 entries selected");
}

}  // namespace
}  // namespace zvx
