#include "shell/selection_update.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace zvx {
namespace {

// The enabled state of each key after the instructions are applied in order.
std::map<std::string, bool> Applied(const SelectionUpdate& update) {
    std::map<std::string, bool> state;
    for (const MenuInstruction& i : update.menus)
        state[std::string(i.menuKey)] = i.enabled;
    return state;
}

TEST(SelectionUpdate, EmptyListWithoutFolders) {
    const SelectionUpdate update = selecTionIzer({}, false, false);
    EXPECT_EQ(update.state, (SelectionState{"d", "0", "0", "0"}));
    EXPECT_TRUE(update.refreshEntryState);
    const auto menus = Applied(update);
    for (const char* key : {"foldermnuTOP", "pathmnuTOP", "mnufile2", "mnufile5"})
        EXPECT_TRUE(menus.at(key)) << key;
    for (const char* key : {"selectmnu0", "selectmnu1", "selectmnu2", "editmnu0", "editmnu1",
                            "foldermnu7", "copymovemnu0", "copymovemnu1", "expandmnu0",
                            "expandmnu3", "pathmnu1", "pathmnu3", "pathmnu4", "expmnu1"})
        EXPECT_FALSE(menus.at(key)) << key;
    EXPECT_EQ(update.menus.front(), (MenuInstruction{"foldermnuTOP", true}));
}

TEST(SelectionUpdate, ASelectedRowEnablesEntryCommandsAndRowsAloneOnlySelectNamed) {
    const SelectionUpdate update = selecTionIzer({true, true, false, false}, false, false);
    EXPECT_EQ(update.state[1], "e");
    const auto menus = Applied(update);
    for (const char* key : {"selectmnu0", "selectmnu1", "selectmnu2", "editmnu0", "editmnu1",
                            "foldermnu7", "copymovemnu0", "copymovemnu1"})
        EXPECT_TRUE(menus.at(key)) << key;

    const SelectionUpdate unselected = selecTionIzer({true, false, false, false}, false, false);
    EXPECT_EQ(unselected.state[1], "0");
    const auto rowsOnly = Applied(unselected);
    EXPECT_FALSE(rowsOnly.at("editmnu0"));
    EXPECT_FALSE(rowsOnly.at("copymovemnu1"));
    EXPECT_TRUE(rowsOnly.at("editmnu1"));
    EXPECT_TRUE(rowsOnly.at("selectmnu1"));
}

TEST(SelectionUpdate, FoldersAndTheSelectedFolder) {
    const auto unselected = Applied(selecTionIzer({false, false, true, false}, false, false));
    EXPECT_TRUE(unselected.at("expandmnu2"));
    EXPECT_TRUE(unselected.at("expandmnu3"));
    EXPECT_FALSE(unselected.at("expandmnu0"));
    EXPECT_FALSE(unselected.at("pathmnu4"));

    const SelectionUpdate selected = selecTionIzer({false, false, true, true}, false, false);
    EXPECT_EQ(selected.state, (SelectionState{"d", "0", "f", "0"}));
    const auto menus = Applied(selected);
    for (const char* key :
         {"pathmnu4", "pathmnu3", "pathmnu1", "expandmnu0", "expandmnu1", "expmnu0", "expmnu1"})
        EXPECT_TRUE(menus.at(key)) << key;
}

TEST(SelectionUpdate, FlagsLeaveFolderMenusAndEntryState) {
    const SelectionUpdate kept = selecTionIzer({true, true, true, true}, true, false);
    EXPECT_FALSE(kept.refreshEntryState);
    EXPECT_EQ(kept.state, (SelectionState{"d", "e", "0", "0"}));
    const auto menus = Applied(kept);
    EXPECT_FALSE(menus.contains("pathmnu4"));
    EXPECT_FALSE(menus.contains("expandmnu2"));

    EXPECT_FALSE(selecTionIzer({}, false, true).refreshEntryState);
}

}  // namespace
}  // namespace zvx
