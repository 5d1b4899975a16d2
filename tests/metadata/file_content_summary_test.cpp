#include "metadata/file_content_summary.h"

#include <sys/stat.h>

#include <gtest/gtest.h>

#include "id3_block.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::TestEnvironment;
using test::WriteAll;

// A file of one byte of sound and an ID3v1 block, padded with blanks, with title, artist
// and genre.
std::string TaggedFile(const std::string& title, const std::string& artist, unsigned char genre) {
    return "x" + test::Id3Block{"TAG", title, artist, "", "", "", ' ', genre, ' '}.bytes();
}

TEST(FileContentSummary, FirstFiveLinesOfATextFile) {
    TestEnvironment env;
    const auto& folder = env.folder;
    WriteAll(folder / "a.txt", "\r\n\nthree\r\nfour\nfive\r\nsix\nseven\neight\r\n");
    // The two leading empty lines count towards the five, but do not show.
    EXPECT_EQ(FileContentSummary(env.common, folder / "a.txt", "txt"), "three\rfour\rfive");

    // An empty line after the first text stays; a last line without a break counts.
    WriteAll(folder / "b.txt", "one\r\n\r\nthree");
    EXPECT_EQ(FileContentSummary(env.common, folder / "b.txt", "TXT"), "one\r\rthree");

    WriteAll(folder / "empty.txt", "");
    EXPECT_EQ(FileContentSummary(env.common, folder / "empty.txt", "txt"), "");
}

TEST(FileContentSummary, OtherCategoriesHaveNone) {
    TestEnvironment env;
    const auto& folder = env.folder;
    WriteAll(folder / "a.gif", "GIF89a");
    EXPECT_EQ(FileContentSummary(env.common, folder / "a.gif", "image"), "");
    EXPECT_EQ(FileContentSummary(env.common, folder / "a.gif", ""), "");
    // A category without a reader never touches the file.
    EXPECT_EQ(FileContentSummary(env.common, folder / "gone.zip", "compressed"), "");
}

TEST(FileContentSummary, TheTagOfAnMp3File) {
    TestEnvironment env;
    WriteAll(env.folder / "a.mp3", TaggedFile("Song", "  ", 17));
    EXPECT_EQ(FileContentSummary(env.common, env.folder / "a.mp3", "MP3"),
              "Tagged: yes\rTrack: Song\rArtist: <not set>\rAlbum: <not set>\rGenre: "
              "Rock\rComment: <not set>");
    EXPECT_EQ(env.common.id3.TagProducer, "<not set>");

    // Genre 0 is "Blues" on an entry but "<unknown>" here.
    WriteAll(env.folder / "b.mp3", TaggedFile("Song", "Band", 0));
    EXPECT_NE(
        FileContentSummary(env.common, env.folder / "b.mp3", "mp3").find("\rGenre: <unknown>\r"),
        std::string::npos);

    WriteAll(env.folder / "c.mp3", std::string(128, 'x'));
    EXPECT_EQ(FileContentSummary(env.common, env.folder / "c.mp3", "mp3"),
              "Tagged: no\r<Other track information is unknown>");
}

TEST(FileContentSummary, AFileThatCannotBeReadGivesTheErrorText) {
    TestEnvironment env;
    WriteAll(env.folder / "a.mp3", TaggedFile("Song", "Band", 17));
    FileContentSummary(env.common, env.folder / "a.mp3", "mp3");
    // Nothing of the tagged file before shows for a missing one.
    const auto gone = env.folder / "gone.mp3";
    EXPECT_EQ(FileContentSummary(env.common, gone, "Mp3"),
              "Error while retrieving ZVX-Content information for: " + gone.string() + " (mp3)");
    // A FIFO is never opened: it would wait for a writer.
    const auto fifo = env.folder / "pipe.txt";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    EXPECT_EQ(FileContentSummary(env.common, fifo, "txt"),
              "Error while retrieving ZVX-Content information for: " + fifo.string() + " (txt)");
}

}  // namespace
}  // namespace zvx
