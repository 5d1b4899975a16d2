#include "shell/tool_bar.h"

#include <gtest/gtest.h>

#include "shell/command_table.h"

namespace zvx {
namespace {

constexpr SelectionState kDocument{"d", "0", "0", "0"};
constexpr SelectionState kDocumentEntry{"d", "e", "0", "0"};
constexpr SelectionState kDocumentFolder{"d", "0", "f", "0"};

TEST(CommandOfTag, DropsTheRequirementsAndLowerCases) {
    EXPECT_EQ(CommandOfTag("dfxx_folder_delete"), "folder_delete");
    EXPECT_EQ(CommandOfTag("xxxx_Document_New"), "document_new");
    EXPECT_EQ(CommandOfTag("xxx_"), "");
    EXPECT_EQ(ResolveCommand(CommandOfTag("xxxx_zvx_about")).command, Command::About);
}

TEST(ToolItemEnabled, EachLetterOfTheTagIsARequirementOfTheState) {
    EXPECT_FALSE(ToolItemEnabled("dxxx_document_save", kNoDocumentState, false, true));
    EXPECT_TRUE(ToolItemEnabled("DXXX_document_save", kDocument, false, false));
    EXPECT_FALSE(ToolItemEnabled("dfxx_folder_delete", kDocument, false, true));
    EXPECT_TRUE(ToolItemEnabled("dfxx_folder_delete", kDocumentFolder, false, false));
    EXPECT_FALSE(ToolItemEnabled("dexx_entry_editstart", kDocument, false, true));
    EXPECT_FALSE(ToolItemEnabled("dexx_entry_editstart", {"0", "e", "0", "0"}, false, true));
    EXPECT_TRUE(ToolItemEnabled("dexx_entry_editstart", kDocumentEntry, false, false));
    EXPECT_TRUE(ToolItemEnabled("xxxx_document_new", kNoDocumentState, false, false));
    // The separator's "_" is a requirement no state meets.
    EXPECT_FALSE(ToolItemEnabled("xxx_", kDocumentEntry, false, true));
}

TEST(ToolItemEnabled, KeepFolderItemsLeavesThemAsTheyAre) {
    EXPECT_TRUE(ToolItemEnabled("dfxx_folder_delete", kDocument, true, true));
    EXPECT_FALSE(ToolItemEnabled("dfxx_folder_delete", kDocumentFolder, true, false));
    // Items without "f" follow the state as usual.
    EXPECT_FALSE(ToolItemEnabled("dexx_entry_editstart", kDocument, true, true));
    EXPECT_TRUE(ToolItemEnabled("xxxx_document_new", kDocumentFolder, true, false));
}

}  // namespace
}  // namespace zvx
