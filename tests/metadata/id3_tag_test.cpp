#include "metadata/id3_tag.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "id3_block.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::TestEnvironment;
using test::WriteAll;

using Tag = test::Id3Block;

// Reads a file of one byte of sound and the tag.
TagValues Read(TestEnvironment& env, const Tag& tag) {
    WriteAll(env.folder / "a.mp3", "x" + tag.bytes());
    ReadID3Tag(env.common, env.folder / "a.mp3");
    return env.common.id3;
}

TEST(ReadID3Tag, OnlyAFileLongerThanTheBlockIsReadAndTheMarkerInAnyCase) {
    TestEnvironment env;
    Tag tag;
    tag.head = "tAg";
    tag.title = "Song";
    env.common.id3.HasID3Tag = true;
    WriteAll(env.folder / "tag.mp3", tag.bytes());
    ReadID3Tag(env.common, env.folder / "tag.mp3");
    EXPECT_FALSE(env.common.id3.HasID3Tag);
    EXPECT_EQ(env.common.id3.TagTitle, "");

    const TagValues read = Read(env, tag);
    EXPECT_TRUE(read.HasID3Tag);
    EXPECT_EQ(read.TagTitle, std::string("Song") + std::string(26, '\0'));
}

TEST(ReadID3Tag, TextsAreTrimmedOfBlanksOnlyAndConvertedFromLatin1AndNumbersFollowTheirRules) {
    TestEnvironment env;
    Tag tag;
    tag.title = "  Song";
    tag.artist = "  The Band" + std::string(20, ' ');
    tag.album = "Caf\xE9 \xFF" + std::string(24, ' ');
    tag.comment = std::string(28, 'c') + "C";
    const TagValues read = Read(env, tag);
    EXPECT_EQ(read.TagTitle, "Song" + std::string(24, '\0'));
    EXPECT_EQ(read.TagArtist, "The Band");
    EXPECT_EQ(read.TagAlbum, "Caf\xC3\xA9 \xC3\xBF");
    // All 29 comment bytes; byte 126 is the track, never the comment.
    EXPECT_EQ(read.TagComment, std::string(28, 'c') + "C");

    // The rules of track, genre and year.
    for (auto [byte, track] : {std::pair{1, 1}, {30, 30}, {31, 0}, {0, 0}}) {
        tag.track = static_cast<unsigned char>(byte);
        EXPECT_EQ(Read(env, tag).TagTrack, track) << byte;
    }
    for (auto [byte, genre] : {std::pair{0, "0"}, {115, "115"}, {116, "<unknown>"}}) {
        tag.genre = static_cast<unsigned char>(byte);
        EXPECT_EQ(Read(env, tag).TagGenre, genre) << byte;
    }
    // A year of two characters takes a century, "-5" too ("20-5" reads as 20); beyond a
    // 16-bit Integer the year is 0.
    const std::pair<const char*, int> years[] = {
        {"99", 1999}, {"  99", 1999}, {"20", 2020}, {"21", 1921},   {"05", 5},
        {"abcd", 0},  {"3.5", 4},     {"-5", 20},   {"1e4", 10000}, {"9e99", 0}};
    for (auto [text, year] : years) {
        tag.year = text;
        EXPECT_EQ(Read(env, tag).TagYear, year) << text;
    }
}

TEST(ReadID3Tag, AFileWithoutATagKeepsTheLastFilesHasID3Tag) {
    TestEnvironment env;
    Tag tag;
    tag.title = "Song";
    tag.year = "1999";
    tag.track = 3;
    tag.genre = 7;
    Read(env, tag);
    env.common.id3.TagProducer = "Producer";

    tag.head = "TAQ";
    const TagValues read = Read(env, tag);
    EXPECT_TRUE(read.HasID3Tag);
    EXPECT_EQ(read.TagTitle + read.TagProducer + read.TagGenre, "");
    EXPECT_TRUE(read.TagYear == 0 && read.TagTrack == 0);

    // A file that cannot be read is silent and counts as one without a tag.
    env.common.id3.TagTitle = "stale";
    ReadID3Tag(env.common, env.folder / "gone.mp3");
    EXPECT_TRUE(env.common.id3.HasID3Tag);
    EXPECT_EQ(env.common.id3.TagTitle, "");
}

}  // namespace
}  // namespace zvx
