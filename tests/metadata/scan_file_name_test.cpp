#include "metadata/scan_file_name.h"

#include <gtest/gtest.h>

#include <string>

#include "support/temp_folder.h"

namespace zvx {
namespace {

struct ScanOptions {
    std::string scheme = "$A - $S";
    bool folderScan = true;
    bool songPriority = true;
};

// The scanned fields as "artist|title|album|producer|track".
std::string Scan(std::string_view path, const ScanOptions& options = {}) {
    test::TestEnvironment env;
    env.common.settings.scanScheme = options.scheme;
    env.common.settings.allowFolderScan = options.folderScan;
    env.common.settings.songGotPriority = options.songPriority;
    ScanFileName(env.common, path);
    const ScanValues& s = env.common.scan;
    return s.ScanArtist + "|" + s.ScanTitle + "|" + s.ScanAlbum + "|" + s.ScanProducer + "|" +
           s.ScanTrack;
}

TEST(ScanFileName, StandardSchemeSplitsNameAndFolder) {
    // The folder's artist "Pink" isn't taken: the name gave one.
    EXPECT_EQ(Scan("c:\\Pink\\Pink - Album\\03 - Artist - Song_Name.mp3"),
              "Artist|Song Name|Album||3");
    // "c:" is a drive, no folder; the lone part moves from artist to title.
    EXPECT_EQ(Scan("c:\\a.mp3"), "|a|||");
    // The third part finds no place in the scheme: the first free field takes it.
    EXPECT_EQ(Scan("c:\\x\\A - B - C.mp3"), "A|B|x|C|");
    EXPECT_EQ(Scan("c:\\x\\.mp3"), "||x||");
    EXPECT_EQ(Scan("\\home\\u\\Music\\a.mp3"), "|a|Music||");
    EXPECT_EQ(Scan("c:\\x\\\\a.mp3"), "|a|x||");
    EXPECT_EQ(Scan("c:\\x\\A -- B.mp3"), "A|B|x||");
    // The settings switch the priority and the folder scan.
    EXPECT_EQ(Scan("c:\\a.mp3", {"$A - $S", true, false}), "a||||");
    EXPECT_EQ(Scan("c:\\Pink\\Pink - Album\\03 - Artist - Song_Name.mp3", {"$A - $S", false}),
              "Artist|Song Name|||3");
}

TEST(ScanFileName, NumbersBecomeTheTrackWhereverTheyStand) {
    EXPECT_EQ(Scan("c:\\x\\1999.mp3"), "||x||1999");
    EXPECT_EQ(Scan("c:\\x\\Artist - 07 - Song.mp3"), "Artist|Song|x||7");
    EXPECT_EQ(Scan("c:\\x\\2nd - Song.mp3"), "|Song|x||2");
    // Only the first number is the track.
    EXPECT_EQ(Scan("c:\\x\\01 - 02 - Song.mp3"), "02|Song|x||1");
    // Four characters, not bytes: the "é" goes with the number.
    EXPECT_EQ(Scan("c:\\x\\123\xC3\xA9.mp3"), "||x||123");
}

TEST(ScanFileName, LeadingNumberIsCutOffItsPart) {
    EXPECT_EQ(Scan("c:\\x\\07 Song.mp3"), "|Song|x||7");
    EXPECT_EQ(Scan("c:\\x\\5 Song.mp3"), "|Song|x||5");
    EXPECT_EQ(Scan("c:\\x\\12345 x.mp3"), "|5 x|x||1234");
    // Above 9999 there is no short number; the first four digits are taken.
    EXPECT_EQ(Scan("c:\\x\\10000.mp3"), "|0|x||1000");
    EXPECT_EQ(Scan("c:\\x\\00 Song.mp3"), "|00 Song|x||");
    // The cut takes characters: a UTF-8 letter goes whole, as a Windows-1252 one does.
    EXPECT_EQ(Scan("c:\\x\\5\xC3\xA9 Song.mp3"), "|Song|x||5");
    EXPECT_EQ(Scan("c:\\x\\5\xE9 Song.mp3"), "|Song|x||5");
}

TEST(ScanFileName, SchemeDecidesThePlaces) {
    EXPECT_EQ(Scan("c:\\x\\A - B.mp3", {"$I - $S"}), "|B|x||");
    // The part behind the scheme goes to the first free field and then the next one.
    EXPECT_EQ(Scan("c:\\x\\A - B.mp3", {"$S"}), "B|A|x|B|");
    EXPECT_EQ(Scan("c:\\x\\A - B.mp3", {"$s-$a"}), "B|A|x||");
    EXPECT_EQ(Scan("c:\\x\\Art - Alb - Song - Prod.mp3", {"$A - $B - $S - $P", false}),
              "Art|Song|Alb|Prod|");
    // The folder took the album first, so each later part moves one field on and the
    // last is lost.
    EXPECT_EQ(Scan("c:\\x\\Art - Alb - Song - Prod.mp3", {"$A - $B - $S - $P"}), "Art|Alb|x|Song|");
    // An empty piece behind the last "-" places its part once; past the end, twice.
    EXPECT_EQ(Scan("c:\\x\\A - B - C.mp3", {"$A -", false}), "A|B|C|C|");
    // $N is tolerated: a part that is no short number goes to a free field.
    EXPECT_EQ(Scan("c:\\x\\x1 - A - B.mp3", {"$N - $A - $S"}), "x1|A|x|B|");
}

TEST(ScanFileName, FolderGivesAlbumAndArtist) {
    EXPECT_EQ(Scan("c:\\Artist - Album - Disc 2\\Song.mp3"), "Artist|Song|Album - Disc 2||");
    EXPECT_EQ(Scan("c:\\Album -\\Song.mp3"), "|Song|Album -||");
    EXPECT_EQ(Scan("c:\\-Album\\Song.mp3"), "|Song|-Album||");
    EXPECT_EQ(Scan("c:\\ Band - Live \\Song.mp3"), "Band|Song|Live||");
}

TEST(ScanFileName, OddInputEndsQuickly) {
    EXPECT_EQ(Scan(""), "||||");
    EXPECT_EQ(Scan("a.mp3"), "||||");
    EXPECT_EQ(Scan(std::string("c:\\x\\A\0B - C.mp3", 16)), std::string("A\0B|C|x||", 9));
    EXPECT_EQ(Scan("c:\\x\\\xE9t\xE9 - \xFF.mp3"), "\xE9t\xE9|\xFF|x||");

    std::string dashes = "\\";
    for (int i = 0; i < 200000; ++i)
        dashes += "-a";
    std::string digits(1000000, '7');
    // A scan that grew with the square of these would run into the test's time limit.
    EXPECT_EQ(Scan(dashes), "a|a|a|a|");
    EXPECT_EQ(Scan("\\" + digits), "|" + digits.substr(4) + "|||7777");
    EXPECT_EQ(Scan(dashes, {std::string(100000, '-') + "$S"}), "a|a|a|a|");
}

TEST(ScanSchemeToken, PiecesCountFromOne) {
    EXPECT_EQ(ScanSchemeToken("$a - $s", 2), "$S");
    EXPECT_EQ(ScanSchemeToken("$a - $s", 3), "NONE");
    EXPECT_EQ(ScanSchemeToken("$a - $s", 0), "NONE");
    EXPECT_EQ(ScanSchemeToken("$A -", 2), "");
    EXPECT_EQ(ScanSchemeToken("$A--$S", 3), "$S");
}

TEST(LeadingDigitCount, CountsDigitsButNeverBelowTwo) {
    EXPECT_EQ(LeadingDigitCount(""), 2);
    EXPECT_EQ(LeadingDigitCount("x123"), 2);
    EXPECT_EQ(LeadingDigitCount(" 123"), 2);
    EXPECT_EQ(LeadingDigitCount("12345 x"), 5);
}

}  // namespace
}  // namespace zvx
