#include "shell/command_table.h"

#include <gtest/gtest.h>

#include "shell/tool_bar.h"

namespace zvx {
namespace {

TEST(ResolveCommand, MenuKeyAndOtherNameSelectTheSameCommand) {
    EXPECT_EQ(ResolveCommand("mnufile1").command, Command::DocumentOpen);
    EXPECT_EQ(ResolveCommand("document_open").command, Command::DocumentOpen);
    EXPECT_EQ(ResolveCommand("mnuwin0").command, Command::WindowsCascade);
    // The name keeps its spelling: the correctly spelt one is unknown.
    EXPECT_EQ(ResolveCommand("zvx_windows_cascase").command, Command::WindowsCascade);
    EXPECT_EQ(ResolveCommand("zvx_windows_cascade").command, Command::None);
    EXPECT_EQ(ResolveCommand("mnufile6").command, Command::Quit);
    EXPECT_EQ(ResolveCommand("addmnu2").command, Command::EntryAddManually);
    EXPECT_EQ(ResolveCommand("entry_add_wizard").command, Command::EntryAddWizard);
}

TEST(ResolveCommand, ComparesExactly) {
    EXPECT_EQ(ResolveCommand("MNUFILE1").command, Command::None);
    EXPECT_EQ(ResolveCommand("document_open ").command, Command::None);
    EXPECT_EQ(ResolveCommand("document_ope").command, Command::None);
    EXPECT_EQ(ResolveCommand("").command, Command::None);
}

TEST(ResolveCommand, EveryMenuKeySelectsItsOwnRow) {
    const auto names = CommandNames();
    for (const CommandName& row : names)
        EXPECT_EQ(ResolveCommand(row.menuKey).command, row.command) << row.menuKey;
    EXPECT_EQ(names.front().menuKey, "mbarstandard");
    EXPECT_EQ(names.back().menuKey, "reportstylemnu0");
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

TEST(ResolveCommand, UnknownNamesAreIgnored) {
    EXPECT_EQ(ResolveCommand("no_such_command").command, Command::None);
    EXPECT_EQ(ResolveCommand("entry_add_audiocd").command, Command::None);  // not yet built
    // A separator's tag gives the empty name, which selects nothing.
    EXPECT_EQ(ResolveCommand(CommandOfTag("xxx_")).command, Command::None);
}

}  // namespace
}  // namespace zvx
