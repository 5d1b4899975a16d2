#include "shell/command_line.h"

#include <gtest/gtest.h>

namespace zvx {
namespace {

TEST(CommandLine, ArgumentsBecomeOneTextWithSingleBlanks) {
    char program[] = "zvx";
    char first[] = "/music/my";
    char second[] = "songs.zvx";
    char* argv[] = {program, first, second};
    EXPECT_EQ(JoinArguments(3, argv), "/music/my songs.zvx");
    EXPECT_EQ(JoinArguments(1, argv), "");
}

TEST(CommandLine, QuoteRuleRemovesOneLeadingAndOneTrailingQuote) {
    EXPECT_EQ(ApplyQuoteRule("\"/music/my songs.zvx\""), "/music/my songs.zvx");
    EXPECT_EQ(ApplyQuoteRule("/music/my songs.zvx\""), "/music/my songs.zvx");
    // Only one character at each end goes; quotes inside stay.
    EXPECT_EQ(ApplyQuoteRule("\"\"a \"b\"\"\""), "\"a \"b\"\"");
    EXPECT_EQ(ApplyQuoteRule("\""), "");
    EXPECT_EQ(ApplyQuoteRule("  a.zvx "), "  a.zvx ");
}

TEST(CommandLine, RelativeDocumentPathsAreMadeAbsolute) {
    EXPECT_EQ(AbsoluteDocumentPath("songs/a b.zvx", "/home/u"), "/home/u/songs/a b.zvx");
    EXPECT_EQ(AbsoluteDocumentPath("../a.zvx", "/home/u"), "/home/a.zvx");
    EXPECT_EQ(AbsoluteDocumentPath("/data/a.zvx", "/home/u"), "/data/a.zvx");
    EXPECT_EQ(AbsoluteDocumentPath("", "/home/u"), "");
}

}  // namespace
}  // namespace zvx
