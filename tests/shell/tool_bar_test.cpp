#include "shell/tool_bar.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shell/command_table.h"

namespace zvx {
namespace {

constexpr SelectionState kDocument{"d", "0", "0", "0"};
constexpr SelectionState kDocumentEntry{"d", "e", "0", "0"};
constexpr SelectionState kDocumentFolder{"d", "0", "f", "0"};

TEST(MainToolBar, ButtonsAndDropDownsInTheirOrder) {
    std::vector<std::string> labels;
    for (const ToolButton& button : MainToolBar())
        labels.emplace_back(button.label);
    EXPECT_EQ(labels, (std::vector<std::string>{"New", "Load", "Save", "", "Options", "Find",
                                                "Folder", "Add", "Edit", "About"}));
    EXPECT_TRUE(MainToolBar()[3].separator);
    EXPECT_EQ(MainToolBar()[3].tag, "xxx_");
    EXPECT_EQ(MainToolBar()[5].toolTip, "Opens the Find-Entry-Dialgue");
    ASSERT_EQ(MainToolBar()[6].dropDown.size(), 3u);
    EXPECT_EQ(MainToolBar()[6].dropDown[2].tag, "dfxx_folder_delete");
    ASSERT_EQ(MainToolBar()[7].dropDown.size(), 3u);
    EXPECT_EQ(MainToolBar()[7].dropDown[1].label, "Audio-CD...");
}

TEST(CommandOfTag, DropsTheRequirementsAndLowerCases) {
    EXPECT_EQ(CommandOfTag("dfxx_folder_delete"), "folder_delete");
    EXPECT_EQ(CommandOfTag("xxxx_Document_New"), "document_new");
    EXPECT_EQ(CommandOfTag("xxx_"), "");
    EXPECT_EQ(ResolveCommand(CommandOfTag("xxxx_zvx_about")).command, Command::About);
}

TEST(ToolItemEnabled, DocumentRequirement) {
    EXPECT_FALSE(ToolItemEnabled("dxxx_document_save", kNoDocumentState, false, true));
    EXPECT_TRUE(ToolItemEnabled("dxxx_document_save", kDocument, false, false));
    EXPECT_TRUE(ToolItemEnabled("DXXX_document_save", kDocument, false, false));
}

TEST(ToolItemEnabled, FolderItemsNeedASelectedFolder) {
    EXPECT_FALSE(ToolItemEnabled("dfxx_folder_delete", kDocument, false, true));
    EXPECT_TRUE(ToolItemEnabled("dfxx_folder_delete", kDocumentFolder, false, false));
    EXPECT_FALSE(ToolItemEnabled("dfxx_folder_delete", kNoDocumentState, false, true));
}

TEST(ToolItemEnabled, KeepFolderItemsLeavesThemAsTheyAre) {
    EXPECT_TRUE(ToolItemEnabled("dfxx_folder_delete", kDocument, true, true));
    EXPECT_FALSE(ToolItemEnabled("dfxx_folder_delete", kDocumentFolder, true, false));
    // Items without "f" follow the state as usual.
    EXPECT_FALSE(ToolItemEnabled("dexx_entry_editstart", kDocument, true, true));
}

TEST(ToolItemEnabled, DocumentAndEntryNeedBoth) {
    EXPECT_FALSE(ToolItemEnabled("dexx_entry_editstart", kDocument, false, true));
    EXPECT_FALSE(ToolItemEnabled("dexx_entry_editstart", {"0", "e", "0", "0"}, false, true));
    EXPECT_TRUE(ToolItemEnabled("dexx_entry_editstart", kDocumentEntry, false, false));
}

TEST(ToolItemEnabled, NoRequirementIsAlwaysOn) {
    EXPECT_TRUE(ToolItemEnabled("xxxx_document_new", kNoDocumentState, false, false));
    EXPECT_TRUE(ToolItemEnabled("xxxx_document_new", kDocumentFolder, true, false));
    // The separator's "_" is a requirement no state meets.
    EXPECT_FALSE(ToolItemEnabled("xxx_", kDocumentEntry, false, true));
}

}  // namespace
}  // namespace zvx
