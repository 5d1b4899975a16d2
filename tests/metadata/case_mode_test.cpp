#include "metadata/case_mode.h"

#include <gtest/gtest.h>

namespace zvx {
namespace {

TEST(CaseMode, EveryWordStartsAfterBlanksBracketsAndDashesAndTheOtherModesCaseTheWhole) {
    EXPECT_EQ(ApplyCaseMode("(the BEST of) rock-n-roll", kCaseEveryWord, true),
              "(The Best Of) Rock-N-Roll");
    EXPECT_EQ(ApplyCaseMode("[live]x", kCaseEveryWord, true), "[Live]X");
    EXPECT_EQ(ApplyCaseMode("a_b", kCaseEveryWord, true), "A_B");
    EXPECT_EQ(ApplyCaseMode("a_b", kCaseEveryWord, false), "A_b");
    EXPECT_EQ(ApplyCaseMode("ÉTÉ été", kCaseEveryWord, true), "Été Été");
    EXPECT_EQ(ApplyCaseMode("o'NEIL", kCaseEveryWord, true), "O'neil");
    // The other modes.
    EXPECT_EQ(ApplyCaseMode("hELLO World", kCaseFirstLetter, true), "Hello world");
    EXPECT_EQ(ApplyCaseMode("hELLO", kCaseCapitals, true), "HELLO");
    EXPECT_EQ(ApplyCaseMode("hELLO", kCaseLower, true), "hello");
    EXPECT_EQ(ApplyCaseMode("hELLO", kCaseLeaveUntouched, true), "hELLO");
    EXPECT_EQ(ApplyCaseMode("hELLO", 9, true), "hELLO");
    EXPECT_EQ(ApplyCaseMode("", kCaseFirstLetter, true), "");
}

}  // namespace
}  // namespace zvx
