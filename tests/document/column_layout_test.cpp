#include <gtest/gtest.h>

#include <algorithm>

#include "document/column_layout.h"
#include "document/list_appearance.h"
#include "document/styles_list.h"
#include "shell/column_setting_name.h"
#include "shell/config_files.h"
#include "store/settings.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

// The titles of the columns a layout shows, in display order.
std::vector<std::string> VisibleTitles(const ListLayout& layout) {
    std::vector<std::string> titles;
    for (int column : layout.order()) {
        if (layout.width(column) > 0)
            titles.push_back(kListColumnTitles[column - 1]);
    }
    return titles;
}

std::vector<int> StoredColumns(const ColumnSetting& setting) {
    std::vector<int> columns;
    for (const ColumnPlacement& placement : setting.columns)
        columns.push_back(placement.column);
    return columns;
}

TEST(ColumnLayout, TheShippedSettingsLoadAndTheStartSettingFallsBackToDefault) {
    test::TestEnvironment env;
    PrepareConfigFiles(env.common);
    ListLayout layout(kListColumnCount, 100);
    LoadColumnSetting(env.common, layout, "audio-short", false);
    EXPECT_EQ(VisibleTitles(layout),
              (std::vector<std::string>{"Track", "Artist", "Title", "Length", "Album", "Year"}));
    LoadColumnSetting(env.common, layout, "Default", false);
    EXPECT_EQ(VisibleTitles(layout).size(), 22u);
    EXPECT_EQ(layout.order()[4], 7);
    EXPECT_EQ(layout.width(1), 215);

    test::WriteAll(env.folder / "CONFIG" / "wide.ZVL", "0\r\n0\r\n");
    test::WriteAll(env.folder / "CONFIG" / "notes.txt", "");
    EXPECT_EQ(ColumnSettingNames(env.common),
              (std::vector<std::string>{"Audio-Short", "Default", "wide"}));
    EXPECT_EQ(StartColumnSettingName(env.common), "Default");
    WriteSetting(env.common, "DEFAULTREPORTCOLUMNS", "wide");
    EXPECT_EQ(StartColumnSettingName(env.common), "wide");
    WriteSetting(env.common, "DEFAULTREPORTCOLUMNS", "gone");
    EXPECT_EQ(StartColumnSettingName(env.common), "Default");
}

TEST(ColumnLayout, AShortLayoutMovesItsColumnsToTheFrontAndLeavesTheRest) {
    ListLayout layout(5, 50);
    ApplyColumnSetting(layout, {3, 1, {{4, 10}, {2, std::nullopt}}}, false);
    EXPECT_EQ(layout.order(), (std::vector<int>{4, 2, 1, 3, 5}));
    EXPECT_EQ(layout.width(4), 10);
    // A file that ends after a column number leaves that column's width alone.
    EXPECT_EQ(layout.width(2), 50);
    EXPECT_EQ(layout.sort.SortKey, 3);
    EXPECT_EQ(layout.sort.SortOrder, 1);
    // Numbers outside the list are passed over; their place is still counted.
    ApplyColumnSetting(layout, {0, 0, {{0, 7}, {99, 7}, {1, 20}}}, false);
    EXPECT_EQ(layout.order(), (std::vector<int>{4, 2, 1, 3, 5}));
    EXPECT_EQ(layout.Position(1), 3);
    EXPECT_EQ(layout.width(1), 20);
}

TEST(ColumnLayout, TheSearchListKeepsItsFolderColumnInFront) {
    ListLayout search(5, 60);
    ApplyColumnSetting(search, {2, 0, {{1, 200}, {3, 150}, {2, 80}}}, true);
    // Column 2 of the search list is "ZVX-Folder"; stored 2 and 3 are its 3 and 4.
    EXPECT_EQ(search.order(), (std::vector<int>{2, 1, 4, 3, 5}));
    EXPECT_EQ(search.width(1), 200);
    EXPECT_EQ(search.width(4), 150);
    EXPECT_EQ(search.width(3), 80);
    EXPECT_EQ(search.width(2), 60);

    ColumnSetting saved = ColumnSettingOf(search, true);
    EXPECT_EQ(saved.SortKey, 2);
    EXPECT_EQ(StoredColumns(saved), (std::vector<int>{1, 3, 2, 4}));
    EXPECT_EQ(saved.columns[1].width, 150);
    EXPECT_EQ(StoredColumns(ColumnSettingOf(search, false)), (std::vector<int>{2, 1, 4, 3, 5}));
}

TEST(ColumnLayout, SavingOverAnExistingSettingAsksFirst) {
    test::TestEnvironment env;
    PrepareConfigFiles(env.common);
    ListLayout layout(kListColumnCount, 33);
    layout.setPosition(15, 1);

    EXPECT_TRUE(SaveColumnSetting(env.common, layout, "Mine", false));
    EXPECT_TRUE(env.screen.shown.empty());
    const auto file = ColumnSettingFile(env.common, "Mine");
    const std::string written = test::ReadAll(file);
    EXPECT_EQ(written.substr(0, 14), "0\r\n0\r\n15\r\n33\r\n");

    layout.setWidth(15, 44);
    env.screen.answerMessage(MsgAnswer::No);
    EXPECT_FALSE(SaveColumnSetting(env.common, layout, "Mine", false));
    ASSERT_EQ(env.screen.shown.size(), 2u);
    EXPECT_EQ(env.screen.shown[0].text, "Replace existing setting \"Mine\" ?");
    EXPECT_EQ(env.screen.shown[0].buttons, MsgButtons::YesNo);
    EXPECT_EQ(env.screen.shown[1].text, "Setting has not been saved.");
    EXPECT_EQ(test::ReadAll(file), written);

    // The default setting is offered for replacing like any other.
    env.screen.answerMessage(MsgAnswer::Yes);
    EXPECT_TRUE(SaveColumnSetting(env.common, layout, "Default", false));
    EXPECT_EQ(env.screen.shown.back().text, "Replace existing setting \"Default\" ?");
    ListLayout loaded(kListColumnCount, 0);
    LoadColumnSetting(env.common, loaded, "Default", false);
    EXPECT_EQ(loaded.order(), layout.order());
    EXPECT_EQ(loaded.width(15), 44);
}

TEST(ColumnLayout, ABlankOrCancelledSettingNameIsAskedAgain) {
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

TEST(ListAppearance, KeysAndStyle) {
    test::TestEnvironment env;
    EXPECT_TRUE(ReadListAppearance(env.common).selRow);
    WriteSetting(env.common, "LISTVIEWSELROW", "NO");
    WriteSetting(env.common, "LISTVIEWSHOWGRID", "YES");
    WriteSetting(env.common, "LISTVIEWHOVER", "yes");
    ListAppearance set = ReadListAppearance(env.common);
    EXPECT_FALSE(set.selRow);
    EXPECT_TRUE(set.showGrid);
    EXPECT_FALSE(set.hover);

    EXPECT_EQ(ListStyleFromSetting("Large Icons"), 0);
    EXPECT_EQ(ListStyleFromSetting("List"), 2);
    EXPECT_EQ(ListStyleFromSetting("list"), 3);
}

TEST(StylesList, DefaultStylesAreWrittenOneALine) {
    test::TestEnvironment env;
    WriteDefaultStyles(env.common);
    const std::string text = test::ReadAll(env.folder / "styles.lst");
    EXPECT_EQ(text.substr(0, 18), "Aggressive\r\nCool\r\n");
    EXPECT_EQ(text.substr(text.size() - 23), "Elevator-Music\r\nParty\r\n");
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 26);
}

}  // namespace
}  // namespace zvx
