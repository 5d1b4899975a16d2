#include "shell/command_table.h"

#include <gtest/gtest.h>

#include "shell/tool_bar.h"

namespace zvx {
namespace {

TEST(ResolveCommand, MenuKeyAndOtherNameSelectTheSameCommand) {
    EXPECT_EQ(ResolveCommand("mnufile1").command, Command::DocumentOpen);
    EXPECT_EQ(ResolveCommand("document_open").command, Command::DocumentOpen);
    // The name keeps its spelling: the correctly spelt one is unknown.
    EXPECT_EQ(ResolveCommand("zvx_windows_cascase").command, Command::WindowsCascade);
    EXPECT_EQ(ResolveCommand("zvx_windows_cascade").command, Command::None);
    for (const CommandName& row : CommandNames())
        EXPECT_EQ(ResolveCommand(row.menuKey).command, row.command) << row.menuKey;
}

TEST(ResolveCommand, ComparesExactlyAndIgnoresUnknownNames) {
    EXPECT_EQ(ResolveCommand("MNUFILE1").command, Command::None);
    EXPECT_EQ(ResolveCommand("document_open ").command, Command::None);
    EXPECT_EQ(ResolveCommand("document_ope").command, Command::None);
    EXPECT_EQ(ResolveCommand("").command, Command::None);
    EXPECT_EQ(ResolveCommand("entry_add_audiocd").command, Command::None);  // not yet built
    // A separator's tag gives the empty name, which selects nothing.
    EXPECT_EQ(ResolveCommand(CommandOfTag("xxx_")).command, Command::None);
}

TEST(ResolveCommand, TheFirstOfTwoEqualNamesWins) {
    // "document_view_icon" names both large icons and the report style.
    EXPECT_EQ(ResolveCommand("document_view_icon").command, Command::ViewLargeIcons);
    EXPECT_EQ(ResolveCommand("viewmnu5").command, Command::ViewReport);
    const ResolvedCommand chset = ResolveCommand("chset2");
    EXPECT_EQ(chset.command, Command::ColumnSetting);
    EXPECT_EQ(chset.argument, "2");
}

TEST(ResolveCommand, RecentFileTakesTheRestAsArgument) {
    const ResolvedCommand third = ResolveCommand("recentfile3");
    EXPECT_EQ(third.command, Command::RecentFile);
    EXPECT_EQ(third.argument, "3");
    EXPECT_EQ(ResolveCommand("recentfile10").argument, "10");
    EXPECT_EQ(ResolveCommand("recentfile").command, Command::RecentFile);
    EXPECT_EQ(ResolveCommand("recentfil").command, Command::None);
    EXPECT_EQ(ResolveCommand("xrecentfile1").command, Command::None);
    EXPECT_TRUE(ResolveCommand("mnufile1").argument.empty());
}

}  // namespace
}  // namespace zvx
