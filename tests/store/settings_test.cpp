#include <gtest/gtest.h>

#include "store/settings.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

class Settings : public ::testing::Test {
  protected:
    std::filesystem::path ini() const { return env.folder / "zvx.ini"; }
    SettingValue read(std::string_view key, std::string_view defaultText = "default") {
        return ReadSetting(env.common, key, defaultText);
    }
    test::TestEnvironment env;
};

TEST_F(Settings, AMissingFileIsCreatedEmptyAndTheDefaultComesBack) {
    SettingValue value = ReadSetting(env.common, "MainLeft", 1000.0);
    EXPECT_TRUE(value.isNumber);
    EXPECT_EQ(value.number, 1000);
    EXPECT_TRUE(std::filesystem::exists(ini()));
    EXPECT_EQ(test::ReadAll(ini()), "");
}

TEST_F(Settings, AnEmptyValueReadsAsTheDefaultAndIsReplacedInItsPlace) {
    test::WriteAll(ini(), "A=1\r\nKEY=\r\nB=2\r\n");
    EXPECT_EQ(read("KEY", "x").text, "x");
    WriteSetting(env.common, "KEY", "v");
    EXPECT_EQ(test::ReadAll(ini()), "A=1\r\nKEY=v\r\nB=2\r\n");
}

TEST_F(Settings, OnlyAValueThatIsEntirelyANonZeroNumberReadsAsNumber) {
    test::WriteAll(ini(),
                   "ZERO=0\r\nFIVE=5\r\nPADDED=0005\r\nHALF=1.5\r\nEXP=1e3\r\nMINUS=-5\r\n"
                   "BLANKS= 7 \r\nTRAIL=3ab\r\nPLUS=+5\r\n");
    // A number shows as "#" and its text. Blanks around it do not count in the comparison.
    std::string values;
    for (const char* key :
         {"ZERO", "FIVE", "PADDED", "HALF", "EXP", "MINUS", "BLANKS", "TRAIL", "PLUS"}) {
        const SettingValue value = read(key);
        values += (value.isNumber ? "#" + value.toText() : value.text) + "|";
    }
    EXPECT_EQ(values, "0|#5|0005|#1.5|1e3|#-5|#7|3ab|+5|");
}

TEST_F(Settings, KeysAreOneKeyWhateverTheirCaseAndValuesStayOnTheirLine) {
    WriteSetting(env.common, "firststart", "no");
    EXPECT_EQ(read("Firststart").text, "no");
    WriteSetting(env.common, "FirstStart", "yes");
    // A line break in a value cannot add a line.
    WriteSetting(env.common, "lastsavepath", "a\r\nB=1");
    EXPECT_EQ(test::ReadAll(ini()), "FIRSTSTART=yes\r\nLASTSAVEPATH=a  B=1\r\n");
    EXPECT_EQ(read("B").text, "default");
}

TEST_F(Settings, AWriteKeepsTheOrderAndUnknownLines) {
    // LF lines and a last line without an end come back with CR LF.
    test::WriteAll(ini(), "; note\nB=2\r\nA=1\r\nnonsense\r\nAB=7");
    WriteSetting(env.common, "A", "3");
    WriteSetting(env.common, "C", "4");
    EXPECT_EQ(test::ReadAll(ini()), "; note\r\nB=2\r\nA=3\r\nnonsense\r\nAB=7\r\nC=4\r\n");
    EXPECT_EQ(read("AB").number, 7);
    EXPECT_EQ(read("nonsense").text, "default");
}

TEST_F(Settings, TheFirstLineWinsAReadWhileAWriteReplacesEveryLine) {
    test::WriteAll(ini(), "K=1\r\nX=0\r\nK=2\r\nK=\r\n");
    EXPECT_EQ(read("K").number, 1);
    WriteSetting(env.common, "K", "3");
    EXPECT_EQ(test::ReadAll(ini()), "K=3\r\nX=0\r\nK=3\r\nK=3\r\n");
}

TEST_F(Settings, AWriteGoesThroughTheTempFileWhichStaysBehind) {
    WriteSetting(env.common, "MainWidth", 6500.0);
    WriteSetting(env.common, "Ratio", 0.5);
    EXPECT_EQ(test::ReadAll(ini()), "MAINWIDTH=6500\r\nRATIO=.5\r\n");
    EXPECT_EQ(test::ReadAll(env.folder / kIniTempFile), test::ReadAll(ini()));
    EXPECT_EQ(read("Ratio").number, 0.5);
}

TEST_F(Settings, TheFileIsFoundWithoutRegardToCase) {
    test::WriteAll(env.folder / "ZVX.INI", "A=1\r\n");
    EXPECT_EQ(read("A").number, 1);
    WriteSetting(env.common, "B", "2");
    EXPECT_EQ(test::ReadAll(env.folder / "ZVX.INI"), "A=1\r\nB=2\r\n");
    EXPECT_FALSE(std::filesystem::exists(ini()));
}

}  // namespace
}  // namespace zvx
