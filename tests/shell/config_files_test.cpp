#include "shell/config_files.h"

#include <gtest/gtest.h>

#include "store/column_setting_file.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

namespace fs = std::filesystem;

// What the shipped layouts hold is checked where they are loaded (column_layout_test).
TEST(PrepareConfigFiles, WritesTheShippedLayoutsOnceAndLeavesExistingOnesOfAnyCase) {
    test::TestEnvironment env;
    PrepareConfigFiles(env.common);
    EXPECT_TRUE(fs::is_directory(env.folder / "PLUGINS"));
    const std::string shipped = test::ReadAll(env.folder / "CONFIG" / "Default.zvl");
    EXPECT_TRUE(shipped.starts_with("0\r\n0\r\n1\r\n215\r\n2\r\n96\r\n")) << shipped;
    EXPECT_TRUE(fs::exists(env.folder / "CONFIG" / "Audio-Short.zvl"));
    test::WriteAll(env.folder / "CONFIG" / "Audio-Short.zvl", "mine");
    PrepareConfigFiles(env.common);
    EXPECT_EQ(test::ReadAll(env.folder / "CONFIG" / "Default.zvl"), shipped);
    EXPECT_EQ(test::ReadAll(env.folder / "CONFIG" / "Audio-Short.zvl"), "mine");

    test::TestEnvironment lower;
    fs::create_directory(lower.folder / "config");
    test::WriteAll(lower.folder / "config" / "default.ZVL", "mine");
    PrepareConfigFiles(lower.common);
    EXPECT_FALSE(fs::exists(lower.folder / "CONFIG"));
    EXPECT_EQ(test::ReadAll(lower.folder / "config" / "default.ZVL"), "mine");
    EXPECT_FALSE(fs::exists(lower.folder / "config" / "Default.zvl"));
    EXPECT_TRUE(fs::exists(lower.folder / "config" / "Audio-Short.zvl"));
}

TEST(PrepareConfigFiles, IgnoresAFolderThatCannotBeMade) {
    test::TestEnvironment env;
    test::WriteAll(env.folder / "CONFIG", "a file where the folder belongs");
    EXPECT_NO_THROW(PrepareConfigFiles(env.common));
    EXPECT_TRUE(fs::is_directory(env.folder / "PLUGINS"));
}

TEST(ColumnSettingFile, ToleratesAShortFileAndNonNumericLines) {
    test::TempFolder temp;
    // LF lines read as well as CR LF ones.
    test::WriteAll(temp / "odd.zvl", "3\r\n1\r\nabc\r\n50\n7x\r\n12.5\r\n4");
    ColumnSetting setting = ReadColumnSetting(temp / "odd.zvl");
    EXPECT_EQ(setting.SortKey, 3);
    EXPECT_EQ(setting.SortOrder, 1);
    ASSERT_EQ(setting.columns.size(), 3u);
    EXPECT_EQ(setting.columns[0].column, 0);
    EXPECT_EQ(setting.columns[0].width, 50);
    EXPECT_EQ(setting.columns[1].column, 7);
    EXPECT_EQ(setting.columns[1].width, 12);  // half to even
    EXPECT_EQ(setting.columns[2].column, 4);
    EXPECT_FALSE(setting.columns[2].width.has_value());

    test::WriteAll(temp / "empty.zvl", "");
    setting = ReadColumnSetting(temp / "empty.zvl");
    EXPECT_EQ(setting.SortKey, 0);
    EXPECT_TRUE(setting.columns.empty());
}

}  // namespace
}  // namespace zvx
