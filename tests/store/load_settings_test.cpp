#include <gtest/gtest.h>

#include "metadata/scan_scheme.h"
#include "store/load_settings.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

class LoadSettingsTest : public ::testing::Test {
  protected:
    const LoadedSettings& load(const std::string& ini) {
        test::WriteAll(env.folder / "zvx.ini", ini);
        LoadSettings(env.common);
        return env.common.settings;
    }
    test::TestEnvironment env;
};

// Values left by an earlier load are replaced, not kept.
TEST_F(LoadSettingsTest, AnEmptyFileGivesTheDefaults) {
    env.common.settings.scanScheme = "$B";
    env.common.settings.flattenControls = false;
    env.common.settings.renumberingLevel = 3;
    const LoadedSettings& s = load("");
    EXPECT_EQ(s.caseMode, 2);
    EXPECT_EQ(s.scanScheme, "$A - $S");
    EXPECT_EQ(s.renumberingLevel, 1);
    EXPECT_EQ(s.defaultAudioType, "Audio: Album");
    EXPECT_TRUE(s.flattenControls && s.allowNonMp3Detagging && s.songGotPriority &&
                s.viewRenumbering);
    EXPECT_FALSE(s.allowViewBuffering || s.addNullSizedFiles);
}

TEST_F(LoadSettingsTest, StoredValuesAreLoaded) {
    const LoadedSettings& s = load(
        "PUBCASEMODE=4\r\nFLATTENCONTROLS=NO\r\nALLOWVIEWBUFFERING=YES\r\n"
        "ALLOWFILESCAN=yes\r\nDEFAULTLISTSTYLE=Small Icons\r\nDEFAULTCOMMENT=5\r\n");
    EXPECT_EQ(s.caseMode, 4);
    EXPECT_FALSE(s.flattenControls);
    EXPECT_TRUE(s.allowViewBuffering);
    // Only the upper-case "YES" switches a key on.
    EXPECT_FALSE(s.allowFileScan);
    EXPECT_EQ(s.defaultListStyle, "Small Icons");
    EXPECT_EQ(s.defaultComment, "5");
}

TEST_F(LoadSettingsTest, RenumberingLevelOutsideItsRangeLoadsAsOneAndZeroTurnsViewingOff) {
    EXPECT_EQ(load("RENUMBERINGLEVEL=7\r\n").renumberingLevel, 1);
    EXPECT_EQ(load("RENUMBERINGLEVEL=-1\r\n").renumberingLevel, 1);
    EXPECT_EQ(load("RENUMBERINGLEVEL=1e30\r\n").renumberingLevel, 1);
    EXPECT_EQ(load("RENUMBERINGLEVEL=3\r\nVIEWRENUMBERING=NO\r\n").renumberingLevel, 3);
    EXPECT_FALSE(env.common.settings.viewRenumbering);
    EXPECT_EQ(load("RENUMBERINGLEVEL=0\r\nVIEWRENUMBERING=YES\r\n").renumberingLevel, 0);
    EXPECT_FALSE(env.common.settings.viewRenumbering);
}

TEST_F(LoadSettingsTest, ScanSchemeIsUpperCasedOrFallsBack) {
    EXPECT_EQ(load("SCANSCHEME=$a - $s\r\n").scanScheme, "$A - $S");
    EXPECT_EQ(load("SCANSCHEME=$A - $X\r\n").scanScheme, "$A - $S");
    EXPECT_EQ(load("SCANSCHEME=$N\r\n").scanScheme, "$A - $S");
}

TEST(ValidScanScheme, RemovesTheTokensInTheirOrder) {
    EXPECT_TRUE(ValidScanScheme(""));
    EXPECT_TRUE(ValidScanScheme(" $a $S - $B-$I $p"));
    // "$P" goes first, which leaves a "$A" to go next.
    EXPECT_TRUE(ValidScanScheme("$$PA"));
    // "$S" goes after "$A", so the "$A" it leaves behind stays.
    EXPECT_FALSE(ValidScanScheme("$$SA"));
    EXPECT_FALSE(ValidScanScheme("$A_$S"));
    EXPECT_FALSE(ValidScanScheme("$N - $S"));
}

TEST_F(LoadSettingsTest, IgnoreNullSizedFilesIsKeptInverted) {
    EXPECT_TRUE(load("IGNORENULLSIZEDFILES=NO\r\n").addNullSizedFiles);
    EXPECT_TRUE(load("IGNORENULLSIZEDFILES=yes\r\n").addNullSizedFiles);
    EXPECT_FALSE(load("IGNORENULLSIZEDFILES=YES\r\n").addNullSizedFiles);
}

}  // namespace
}  // namespace zvx
