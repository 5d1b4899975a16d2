#include "shell/column_setting_name.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace zvx {
namespace {

TEST(ColumnSettingName, ABlankOrCancelledAnswerAsksAgain) {
    test::TestEnvironment env;
    env.screen.answerInput("");     // Cancel
    env.screen.answerInput("   ");  // blanks only
    env.screen.answerInput("Wide");
    EXPECT_EQ(AskColumnSettingName(env.common), "Wide");
    ASSERT_EQ(env.screen.shown.size(), 3u);
    EXPECT_EQ(env.screen.shown[0].caption, "Save Current Listview-Setting");
    EXPECT_EQ(env.screen.shown[0].text, "Please enter a name for the setting.");
    EXPECT_EQ(env.screen.shown[1].text, "Invalid Name!\r\nPlease enter a name for the setting.");
    EXPECT_EQ(env.screen.shown[2].text, env.screen.shown[1].text);
}

}  // namespace
}  // namespace zvx
