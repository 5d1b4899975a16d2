#include "shell/config_files.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "store/column_setting_file.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

std::string Lines(std::initializer_list<int> numbers) {
    std::string text;
    for (int number : numbers)
        text += std::to_string(number) + "\r\n";
    return text;
}

const std::string kDefaultBytes =
    Lines({0,  0,  1,  215, 2,  96,  3,  196, 4,  74,  7,  80, 5,  65, 8,  80,
           6,  96, 18, 104, 10, 104, 15, 41,  9,  104, 11, 96, 12, 76, 13, 76,
           14, 65, 16, 38,  17, 93,  19, 50,  20, 80,  21, 89, 22, 80});
const std::string kAudioShortBytes =
    Lines({0, 0, 15, 40, 10, 200, 9, 200, 19, 50, 11, 160, 16, 38, 2, 0,  1, 0,  3, 0,  17, 0,  4,
           0, 7, 0,  5,  0,  8,   0, 6,   0,  18, 0,  12,  0,  13, 0, 14, 0, 20, 0, 21, 0,  22, 0});

TEST(PrepareConfigFiles, WritesTheShippedLayoutsByteForByte) {
    test::TestEnvironment env;
    PrepareConfigFiles(env.common);
    EXPECT_TRUE(std::filesystem::is_directory(env.folder / "CONFIG"));
    EXPECT_TRUE(std::filesystem::is_directory(env.folder / "PLUGINS"));
    EXPECT_EQ(test::ReadAll(env.folder / "CONFIG" / "Default.zvl"), kDefaultBytes);
    EXPECT_EQ(test::ReadAll(env.folder / "CONFIG" / "Audio-Short.zvl"), kAudioShortBytes);
    // A second start meets the folders and files in place and changes nothing.
    PrepareConfigFiles(env.common);
    EXPECT_EQ(test::ReadAll(env.folder / "CONFIG" / "Default.zvl"), kDefaultBytes);
}

TEST(PrepareConfigFiles, LeavesExistingLayoutsAndFoldersOfAnyCaseAlone) {
    test::TestEnvironment env;
    std::filesystem::create_directory(env.folder / "config");
    test::WriteAll(env.folder / "config" / "default.ZVL", "mine");
    PrepareConfigFiles(env.common);
    EXPECT_FALSE(std::filesystem::exists(env.folder / "CONFIG"));
    EXPECT_EQ(test::ReadAll(env.folder / "config" / "default.ZVL"), "mine");
    EXPECT_FALSE(std::filesystem::exists(env.folder / "config" / "Default.zvl"));
    EXPECT_EQ(test::ReadAll(env.folder / "config" / "Audio-Short.zvl"), kAudioShortBytes);
}

TEST(PrepareConfigFiles, IgnoresAFolderThatCannotBeMade) {
    test::TestEnvironment env;
    test::WriteAll(env.folder / "CONFIG", "a file where the folder belongs");
    EXPECT_NO_THROW(PrepareConfigFiles(env.common));
    EXPECT_TRUE(std::filesystem::is_directory(env.folder / "PLUGINS"));
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
