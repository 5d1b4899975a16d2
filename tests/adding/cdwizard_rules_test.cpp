#include "adding/cdwizard_rules.h"

#include <gtest/gtest.h>

#include "adding/cdwizard_settings.h"
#include "store/settings.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

TEST(CdwizardRules, TheProposedRootNameComesFromDirectoryOrDevice) {
    EXPECT_EQ(ProposeRootName(true, "/media/cd/Rock/", "/media/cd", "Music"), "Rock");
    EXPECT_EQ(ProposeRootName(false, "/media/cd/Rock", "/media/cd", "Music"), "Music (/media/cd)");
    EXPECT_EQ(ProposeRootName(false, "/", "/", ""), "Drive /");
}

TEST(CdwizardRules, TheParentalNameIsTrimmedAndRefused) {
    std::string name = "  Discs  ";
    EXPECT_EQ(ParentalNameProblem(name), "");
    EXPECT_EQ(name, "Discs");
    name = "a\\b";
    EXPECT_EQ(ParentalNameProblem(name), "Backslashes are not allowed in a (parental-)foldername.");
    name = "\\x";  // a backslash in front passes
    EXPECT_EQ(ParentalNameProblem(name), "");
    name = "   ";
    EXPECT_EQ(ParentalNameProblem(name), "Please enter a name for the parental-folder.");
}

TEST(CdwizardRules, ThePatternIsEverythingUnlessOnlyMatchingFilesAreWanted) {
    std::string pattern = "old";
    EXPECT_TRUE(ApplyPattern(false, "*.mp3", pattern));
    EXPECT_EQ(pattern, "*.*");
    EXPECT_TRUE(ApplyPattern(true, "*.mp3;*.wav", pattern));
    EXPECT_EQ(pattern, "*.mp3;*.wav");
    EXPECT_FALSE(ApplyPattern(true, "music/*.mp3", pattern));
    EXPECT_FALSE(ApplyPattern(true, " ", pattern));
    EXPECT_EQ(pattern, "*.mp3;*.wav");
}

TEST(CdwizardSettings, OnlyTheSaveChoiceIsWrittenWhenSavingIsOff) {
    test::TestEnvironment env;
    CdwizardSettings s = LoadCdwizardSettings(env.common);
    EXPECT_EQ(s.parentalName, "New Folder");
    s.saveMySettings = false;
    s.parentalName = "Changed";
    SaveCdwizardSettings(env.common, s);
    EXPECT_EQ(ReadSetting(env.common, "ADDWIZSAVEMYSETTINGS", "YES").toText(), "NO");
    EXPECT_EQ(ReadSetting(env.common, "ADDWIZLASTPARENTAL", "unset").toText(), "unset");
    s.saveMySettings = true;
    s.pattern = "*.mp3";
    SaveCdwizardSettings(env.common, s);
    CdwizardSettings again = LoadCdwizardSettings(env.common);
    EXPECT_EQ(again.parentalName, "Changed");
    EXPECT_EQ(again.pattern, "*.mp3");
}

}  // namespace
}  // namespace zvx
