#include <gtest/gtest.h>

#include <algorithm>

#include "store/date_normaliser.h"
#include "store/entry_line.h"
#include "store/split_path.h"
#include "store/track_format.h"

namespace zvx {
namespace {

TEST(SplitPath, SplitsFromTheRightEnd) {
    SplitPathResult p = SplitPath("c:\\Music\\a.b.mp3");
    EXPECT_EQ(p.drive, "c:");
    EXPECT_EQ(p.folder, "c:\\Music");
    EXPECT_EQ(p.name, "a.b");
    EXPECT_EQ(p.extension, "mp3");
    EXPECT_TRUE(p.hasExtension);
    EXPECT_EQ(p.fileName(), "a.b.mp3");

    EXPECT_EQ(SplitPath("c:\\a.mp3").folder, "c:");
    // A dot in a folder name is not the extension's.
    p = SplitPath("c:\\my.dir\\README");
    EXPECT_EQ(p.name, "README");
    EXPECT_FALSE(p.hasExtension);
    EXPECT_EQ(p.fileName(), "README");
    // Without any "\" there is neither name nor folder.
    p = SplitPath("a.mp3");
    EXPECT_EQ(p.name, "");
    EXPECT_EQ(p.folder, "");
    EXPECT_EQ(p.drive, "");
}

TEST(EntryLine, ComposesTwentyTwoFieldsBehindTheFolderId) {
    EntryValues v;
    v.size = "4800000";
    v.driveId = "MUSIC_CD";
    v.title = "Song";
    v.track = "3";
    v.year = "1999";
    std::string line = ComposeEntryLine("00000007", "C:\\Music\\a.b.mp3", v, true, 1);
    EXPECT_EQ(std::count(line.begin(), line.end(), '\x01'), 22);
    EntryFields f = SplitEntryLine(line);
    EXPECT_EQ(f[0], "00000007");
    EXPECT_EQ(f[1], "a.b.mp3");
    EXPECT_EQ(f[2], "4800000");
    EXPECT_EQ(f[3], "c:\\Music");  // the drive letter is lower-cased
    EXPECT_EQ(f[4], "MUSIC_CD");
    EXPECT_EQ(f[5], "1");
    EXPECT_EQ(f[9], "Song");
    EXPECT_EQ(f[15], "03");  // the track format of level 1
    EXPECT_EQ(f[16], "1999");
    EXPECT_EQ(f[22], "");
    EXPECT_EQ(SplitEntryLine(ComposeEntryLine("00000000", "c:\\a.mp3", {}, false, 1))[3], "c:");
}

TEST(EntryLine, FieldsFromTheDiskCannotBreakTheLine) {
    EntryValues v;
    v.title = "two\r\nlines";
    v.comment =
        "a\x01"
        "b";
    std::string line = ComposeEntryLine("00000000", "\\home\\u\\odd\nname.mp3", v, false, 1);
    EXPECT_EQ(line.find_first_of("\r\n"), std::string::npos);
    EXPECT_EQ(std::count(line.begin(), line.end(), '\x01'), 22);
    EntryFields f = SplitEntryLine(line);
    EXPECT_EQ(f[1], "odd name.mp3");
    EXPECT_EQ(f[9], "two  lines");
    EXPECT_EQ(f[17], "a b");
}

TEST(EntryLine, SplittingDropsWhatStandsBeforeTheFirstSeparator) {
    // A line written by a copy through the menu has "\" as its ninth character.
    EntryFields f = SplitEntryLine(
        "00000001\\\x01name\x01"
        "12");
    EXPECT_EQ(f[0], "00000001");
    EXPECT_EQ(f[1], "name");
    EXPECT_EQ(f[2], "12");
    // A short line repeats its last field in every field behind it.
    EXPECT_EQ(f[3], "12");
    EXPECT_EQ(f[22], "12");
    EXPECT_EQ(SplitEntryLine("0000")[5], "");
}

TEST(TrackFormat, PadsToTheLevelsDigits) {
    EXPECT_EQ(FormatTrack("7", 0), "7");
    EXPECT_EQ(FormatTrack("7", 3), "0007");
    EXPECT_EQ(FormatTrack("", 1), "00");
    EXPECT_EQ(FormatTrack("123", 1), "123");
    EXPECT_EQ(FormatTrack("3ab", 1), "03");
    EXPECT_EQ(FormatTrack("2.5", 0), "3");  // formatting rounds half away from zero
}

TEST(DateNormaliser, DottedDatesBecomeMonthDayYear) {
    EXPECT_EQ(NormaliseDate("7.4.2001 12:00:00"), "4-7-2001");
    EXPECT_EQ(NormaliseDate(" 24.12.29 "), "12-24-2029");
    EXPECT_EQ(NormaliseDate("24.12.30"), "12-24-1930");
    EXPECT_EQ(NormaliseDate("01.02.2003"), "02-01-2003");
    EXPECT_EQ(NormaliseDate(" 12-31-1999 "), "12-31-1999");  // no dot: trimmed only
    EXPECT_EQ(NormaliseDate("12:00"), "");
    EXPECT_EQ(NormaliseDate("1.2"), "2-1-");
}

}  // namespace
}  // namespace zvx
