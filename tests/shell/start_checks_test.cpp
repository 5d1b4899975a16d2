#include "shell/start_checks.h"

#include <gtest/gtest.h>

#include "shell/command_line.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

TEST(CommandLine, ArgumentsBecomeOneAbsolutePathWithoutItsOuterQuotes) {
    char program[] = "zvx";
    char first[] = "/music/my";
    char second[] = "songs.zvx";
    char* argv[] = {program, first, second};
    EXPECT_EQ(JoinArguments(3, argv), "/music/my songs.zvx");
    EXPECT_EQ(JoinArguments(1, argv), "");

    EXPECT_EQ(ApplyQuoteRule("\"/music/my songs.zvx\""), "/music/my songs.zvx");
    EXPECT_EQ(ApplyQuoteRule("/music/my songs.zvx\""), "/music/my songs.zvx");
    // Only one character at each end goes; quotes inside stay.
    EXPECT_EQ(ApplyQuoteRule("\"\"a \"b\"\"\""), "\"a \"b\"\"");
    EXPECT_EQ(ApplyQuoteRule("\""), "");
    EXPECT_EQ(ApplyQuoteRule("  a.zvx "), "  a.zvx ");

    EXPECT_EQ(AbsoluteDocumentPath("songs/a b.zvx", "/home/u"), "/home/u/songs/a b.zvx");
    EXPECT_EQ(AbsoluteDocumentPath("../a.zvx", "/home/u"), "/home/a.zvx");
    EXPECT_EQ(AbsoluteDocumentPath("/data/a.zvx", "/home/u"), "/data/a.zvx");
    EXPECT_EQ(AbsoluteDocumentPath("", "/home/u"), "");
}

TEST(StartChecks, OnlyTheRootFolderIsRefused) {
    test::TempFolder temp;
    EXPECT_TRUE(IsRootFolder("/"));
    EXPECT_TRUE(IsRootFolder("/tmp/.."));
    EXPECT_FALSE(IsRootFolder(temp.path()));
    EXPECT_FALSE(IsRootFolder(temp / "not-yet-made"));
}

TEST(StartChecks, HandOverDecision) {
    EXPECT_EQ(DecideStart("", true, false), StartDecision::EndSilently);
    EXPECT_EQ(DecideStart("", false, false), StartDecision::StartPlain);
    // With another instance the path goes over whether or not it can be read: the
    // hand-over itself drops a missing one.
    EXPECT_EQ(DecideStart("/a.zvx", true, true), StartDecision::HandOver);
    EXPECT_EQ(DecideStart("/a.zvx", true, false), StartDecision::HandOver);
    EXPECT_EQ(DecideStart("/a.zvx", false, true), StartDecision::OpenPending);
    EXPECT_EQ(DecideStart("/a.zvx", false, false), StartDecision::StartPlain);
}

TEST(StartChecks, OnlyAFileThatOpensIsADocumentToOpen) {
    test::TempFolder temp;
    test::WriteAll(temp / "a b.zvx", "x");
    EXPECT_TRUE(FileOpensForReading((temp / "a b.zvx").string()));
    EXPECT_FALSE(FileOpensForReading((temp / "missing.zvx").string()));
    EXPECT_FALSE(FileOpensForReading(temp.path().string()));
    EXPECT_FALSE(FileOpensForReading(""));
}

}  // namespace
}  // namespace zvx
