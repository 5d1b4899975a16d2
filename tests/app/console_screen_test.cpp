#include "console_screen.h"

#include <gtest/gtest.h>

#include <sstream>

namespace zvx::cat {
namespace {

TEST(ConsoleScreen, WithoutATerminalQuestionsTakeTheSafeChoice) {
    std::istringstream in("y\n");  // never read: not interactive
    std::ostringstream err;
    ConsoleScreen screen({}, in, err, false, false);

    EXPECT_EQ(screen.message("Title", "Done.", MsgButtons::OkOnly, MsgIcon::None), MsgAnswer::Ok);
    EXPECT_EQ(screen.message("Q", "Sure?", MsgButtons::YesNo, MsgIcon::Question), MsgAnswer::No);
    EXPECT_EQ(screen.message("Q", "Go?", MsgButtons::OkCancel, MsgIcon::None), MsgAnswer::Cancel);
    EXPECT_EQ(screen.message("Q", "Disk?", MsgButtons::AbortRetryIgnore, MsgIcon::None),
              MsgAnswer::Abort);
    EXPECT_EQ(screen.input("Name", "Folder name:", "New Folder"), "");
    EXPECT_EQ(screen.doubledetect({"a.mp3", "1", "01-01-2001", "a.mp3", "2", "01-02-2001"}),
              "keepold");
    screen.status("Adding");
    screen.progress(1, 2);

    std::string shown = err.str();
    EXPECT_EQ(shown.rfind("Title: Done.\n", 0), 0u) << shown;
    EXPECT_NE(shown.find("zvxcat: no answer given, taking \"no\""), std::string::npos);
    EXPECT_NE(shown.find("taking \"keep-old\""), std::string::npos);
    EXPECT_EQ(shown.find("Adding"), std::string::npos) << "no progress line off a terminal";
    EXPECT_EQ(in.peek(), 'y') << "the input is not read off a terminal";
}

TEST(ConsoleScreen, AConfiguredDuplicateAnswerIsTakenWithoutAsking) {
    std::istringstream in;
    std::ostringstream err;
    ConsoleScreen screen({DuplicateChoiceFor("overwrite-all"), ""}, in, err, false, false);
    EXPECT_EQ(screen.doubledetect({}), "delall");
    EXPECT_TRUE(err.str().empty());

    EXPECT_EQ(DuplicateChoiceFor("keep-all"), "keepall");
    EXPECT_EQ(DuplicateChoiceFor("overwrite"), "delold");
    EXPECT_EQ(DuplicateChoiceFor("yes"), "");
}

TEST(ConsoleScreen, OnATerminalThePersonAnswers) {
    std::istringstream in("maybe\n Y \n\nmy name\n\nkeep-all\nr\n");
    std::ostringstream err;
    ConsoleScreen screen({}, in, err, true, false);
    // An answer that fits no button asks again.
    EXPECT_EQ(screen.message("Q", "Sure?", MsgButtons::YesNo, MsgIcon::None), MsgAnswer::Yes);
    EXPECT_EQ(screen.input("Name", "Name:", "dflt"), "dflt");
    EXPECT_EQ(screen.input("Name", "Name:", "dflt"), "my name");
    // The empty line fits no choice; the next does.
    EXPECT_EQ(screen.doubledetect({}), "keepall");
    EXPECT_EQ(screen.message("Q", "Disk?", MsgButtons::RetryCancel, MsgIcon::None),
              MsgAnswer::Retry);
    // At the end of the input the safe choice is taken.
    EXPECT_EQ(screen.message("Q", "Again?", MsgButtons::YesNoCancel, MsgIcon::None),
              MsgAnswer::Cancel);
    EXPECT_NE(err.str().find("[y]es/[n]o? "), std::string::npos);
}

TEST(ConsoleScreen, ProgressLineIsRedrawnOnlyWhenItChanges) {
    std::istringstream in;
    std::ostringstream err;
    {
        ConsoleScreen screen({}, in, err, false, true);
        screen.status("Adding");
        screen.progress(1, 4);
        screen.progress(1, 4);
        screen.message("", "Line one\r\nLine two", MsgButtons::OkOnly, MsgIcon::None);
        screen.progress(2, 4);
    }
    EXPECT_EQ(err.str(),
              "\rAdding\x1b[K"
              "\rAdding 25%\x1b[K"
              "\r\x1b[K"
              "zvxcat: Line one\nLine two\n"
              "\rAdding 50%\x1b[K"
              "\r\x1b[K");
}

}  // namespace
}  // namespace zvx::cat
