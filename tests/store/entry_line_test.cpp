#include <gtest/gtest.h>

#include <algorithm>

#include "store/date_normaliser.h"
#include "store/entry_line.h"
#include "store/split_path.h"
#include "store/track_format.h"
#include "support/entry_lines.h"

namespace zvx {
namespace {

// Drive, folder, name, extension and file name of the path, each followed by "|".
std::string Parts(std::string_view path) {
    const SplitPathResult p = SplitPath(path);
    return p.drive + "|" + p.folder + "|" + p.name + "|" + (p.hasExtension ? p.extension : "-") +
           "|" + p.fileName() + "|";
}

TEST(SplitPath, SplitsFromTheRightEnd) {
    EXPECT_EQ(Parts("c:\\Music\\a.b.mp3"), "c:|c:\\Music|a.b|mp3|a.b.mp3|");
    EXPECT_EQ(Parts("c:\\a.mp3"), "c:|c:|a|mp3|a.mp3|");
    // A dot in a folder name is not the extension's.
    EXPECT_EQ(Parts("c:\\my.dir\\README"), "c:|c:\\my.dir|README|-|README|");
    // Without any "\" there is neither name nor folder.
    EXPECT_TRUE(Parts("a.mp3").starts_with("|||"));
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
    // The drive letter is lower-cased; the track has the format of level 1.
    EXPECT_EQ(test::Fields(line, {0, 1, 2, 3, 4, 5, 9, 15, 16, 22}),
              "00000007|a.b.mp3|4800000|c:\\Music|MUSIC_CD|1|Song|03|1999||");
    EXPECT_EQ(test::Fields(ComposeEntryLine("00000000", "c:\\a.mp3", {}, false, 1), {3}), "c:|");
}

TEST(EntryLine, FieldsFromTheDiskCannotBreakTheLine) {
    EntryValues v;
    v.title = "two\r\nlines";
    v.comment = "a\001b";
    std::string line = ComposeEntryLine("00000000", "\\home\\u\\odd\nname.mp3", v, false, 1);
    EXPECT_EQ(line.find_first_of("\r\n"), std::string::npos);
    EXPECT_EQ(std::count(line.begin(), line.end(), '\x01'), 22);
    EXPECT_EQ(test::Fields(line, {1, 9, 17}), "odd name.mp3|two  lines|a b|");
}

TEST(EntryLine, SplittingDropsWhatStandsBeforeTheFirstSeparator) {
    // A line written by a copy through the menu has "\" as its ninth character. A short
    // line repeats its last field in every field behind it.
    EXPECT_EQ(test::Fields("00000001\\\001name\00112", {0, 1, 2, 3, 22}),
              "00000001|name|12|12|12|");
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
