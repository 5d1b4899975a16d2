#include "common/numeric_value.h"

#include <gtest/gtest.h>

namespace zvx {
namespace {

TEST(NumericValue, TakesTheLeadingNumberAndSkipsBlanksOrIsZero) {
    EXPECT_EQ(NumericValue("3ab"), 3);
    EXPECT_EQ(NumericValue("  42"), 42);
    EXPECT_EQ(NumericValue("1 2"), 12);
    EXPECT_EQ(NumericValue("-2.5x"), -2.5);
    EXPECT_EQ(NumericValue("1.2.3"), 1.2);
    EXPECT_EQ(NumericValue("1e3"), 1000);
    EXPECT_EQ(NumericValue("2D2"), 200);
    EXPECT_EQ(NumericValue("7e"), 7);
    EXPECT_EQ(NumericValue("&H1F"), 31);
    EXPECT_EQ(NumericValue("&O17"), 15);
    // Text without a number is zero.
    EXPECT_EQ(NumericValue(""), 0);
    EXPECT_EQ(NumericValue("abc"), 0);
    EXPECT_EQ(NumericValue("e5"), 0);
    EXPECT_EQ(NumericValue("-"), 0);
    EXPECT_EQ(NumericValue("."), 0);
    EXPECT_EQ(NumericValue("1e999"), 0);  // overflow never gives infinity
}

TEST(NumberText, WritesNumbersAsTheProgramDoes) {
    EXPECT_EQ(NumberText(5), "5");
    EXPECT_EQ(NumberText(1.5), "1.5");
    EXPECT_EQ(NumberText(0.5), ".5");
    EXPECT_EQ(NumberText(-0.25), "-.25");
    EXPECT_EQ(NumberText(1000), "1000");
    EXPECT_EQ(NumberText(1e20), "1E+20");
}

TEST(RoundHalfEven, RoundsHalvesToTheEvenNeighbour) {
    EXPECT_EQ(RoundHalfEven(2.5), 2);
    EXPECT_EQ(RoundHalfEven(3.5), 4);
    EXPECT_EQ(RoundHalfEven(-2.5), -2);
}

}  // namespace
}  // namespace zvx
