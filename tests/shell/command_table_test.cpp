#include "shell/command_table.h"

#include <gtest/gtest.h>

#include "shell/tool_bar.h"

namespace zvx {
namespace {

TEST(ResolveCommand, MenuKeysAndOtherNamesCompareExactly) {
    EXPECT_EQ(ResolveCommand("mnufile1").command, Command::DocumentOpen);
    EXPECT_EQ(ResolveCommand("document_open").command, Command::DocumentOpen);
    EXPECT_TRUE(ResolveCommand("mnufile1").argument.empty());
    // The name keeps its spelling: the correctly spelt one is unknown.
    EXPECT_EQ(ResolveCommand("zvx_windows_cascase").command, Command::WindowsCascade);
    // "entry_add_audiocd" is not built yet.
    for (const char* unknown : {"zvx_windows_cascade", "MNUFILE1", "document_open ", "document_ope",
                                "", "entry_add_audiocd", "recentfil", "xrecentfile1"})
        EXPECT_EQ(ResolveCommand(unknown).command, Command::None) << unknown;
    for (const CommandName& row : CommandNames()) {
        if (row.menuKey.empty())
            continue;
        EXPECT_EQ(ResolveCommand(row.menuKey).command, row.command) << row.menuKey;
    }
    // The editor's start has no menu entry of its own: only its name reaches it.
    EXPECT_EQ(ResolveCommand("entry_editstart").command, Command::EntryEditStart);
}

TEST(ResolveCommand, TheFirstOfTwoEqualNamesWinsAndNumberedKeysTakeTheRestAsArgument) {
    // "document_view_icon" names both large icons and the report style.
    EXPECT_EQ(ResolveCommand("document_view_icon").command, Command::ViewLargeIcons);
    EXPECT_EQ(ResolveCommand("viewmnu5").command, Command::ViewReport);
    const ResolvedCommand chset = ResolveCommand("chset2");
    EXPECT_EQ(chset.command, Command::ColumnSetting);
    EXPECT_EQ(chset.argument, "2");
    const ResolvedCommand third = ResolveCommand("recentfile3");
    EXPECT_EQ(third.command, Command::RecentFile);
    EXPECT_EQ(third.argument, "3");
    EXPECT_EQ(ResolveCommand("recentfile10").argument, "10");
    EXPECT_EQ(ResolveCommand("recentfile").command, Command::RecentFile);
}

TEST(CommandOfTag, DropsTheRequirementsAndLowerCases) {
    EXPECT_EQ(CommandOfTag("dfxx_folder_delete"), "folder_delete");
    EXPECT_EQ(CommandOfTag("xxxx_Document_New"), "document_new");
    EXPECT_EQ(CommandOfTag("xxx_"), "");  // a separator
    EXPECT_EQ(ResolveCommand(CommandOfTag("xxxx_zvx_about")).command, Command::About);
}

TEST(ToolItemEnabled, EachLetterOfTheTagIsARequirementUnlessFolderItemsAreKept) {
    constexpr SelectionState document{"d", "0", "0", "0"};
    constexpr SelectionState entry{"d", "e", "0", "0"};
    constexpr SelectionState folder{"d", "0", "f", "0"};
    EXPECT_FALSE(ToolItemEnabled("dxxx_document_save", kNoDocumentState, false, true));
    EXPECT_TRUE(ToolItemEnabled("DXXX_document_save", document, false, false));
    EXPECT_FALSE(ToolItemEnabled("dfxx_folder_delete", document, false, true));
    EXPECT_TRUE(ToolItemEnabled("dfxx_folder_delete", folder, false, false));
    EXPECT_FALSE(ToolItemEnabled("dexx_entry_editstart", document, false, true));
    EXPECT_FALSE(ToolItemEnabled("dexx_entry_editstart", {"0", "e", "0", "0"}, false, true));
    EXPECT_TRUE(ToolItemEnabled("dexx_entry_editstart", entry, false, false));
    EXPECT_TRUE(ToolItemEnabled("xxxx_document_new", kNoDocumentState, false, false));
    // The separator's "_" is a requirement no state meets.
    EXPECT_FALSE(ToolItemEnabled("xxx_", entry, false, true));

    // Kept folder items stay as they are; the others follow the state as usual.
    EXPECT_TRUE(ToolItemEnabled("dfxx_folder_delete", document, true, true));
    EXPECT_FALSE(ToolItemEnabled("dfxx_folder_delete", folder, true, false));
    EXPECT_FALSE(ToolItemEnabled("dexx_entry_editstart", document, true, true));
    EXPECT_TRUE(ToolItemEnabled("xxxx_document_new", folder, true, false));
}

}  // namespace
}  // namespace zvx
