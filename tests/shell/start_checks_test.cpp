#include "shell/start_checks.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace zvx {
namespace {

TEST(StartChecks, OnlyTheRootFolderIsRefused) {
    test::TempFolder temp;
    EXPECT_TRUE(IsRootFolder("/"));
    EXPECT_TRUE(IsRootFolder("/tmp/.."));
    EXPECT_FALSE(IsRootFolder(temp.path()));
    EXPECT_FALSE(IsRootFolder(temp / "not-yet-made"));
    EXPECT_STREQ(kRootRefusalCaption, "Hard-Error!");
    EXPECT_STREQ(kRootRefusalText,
                 "ZVX cannot been started, if it is installed in the root-directory of a "
                 "device!\r\nRe-Install ZVX in a valid folder and try again!");
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
