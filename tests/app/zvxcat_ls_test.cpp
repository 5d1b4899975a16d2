#include <gtest/gtest.h>

#include "support/catalogue_bytes.h"
#include "tool_sandbox.h"

namespace zvx::test {
namespace {

const std::string kSong = EntryLineOf(
    "00000001",
    {"song.mp3", "5",      "c:\\music", "CD1",  "1",     "CD One", "01-02-2003", "Audio: Album",
     "Title",    "Artist", "Album",     "Rock", "",      "",       "7",          "0",
     "",         "",       "3:00",      "0",    "44100", ""});
const std::string kLive = EntryLineOf("00000002", {"live.mp3"});
const std::string kOther = EntryLineOf("00000003", {"other.mp3"});

std::string Catalogue() {
    return CatalogueBytes({{"Music\\", "", 10, "00000001"},
                           {"Music\\Live\\", "", 10, "00000002"},
                           {"Music2\\", "", 10, "00000003"}},
                          {kLive, kSong, "short", kOther});
}

TEST(ZvxcatLs, PrintsTheColumnTextsOfTheFolderInFileOrder) {
    ToolSandbox box;
    WriteAll(box / "c.zvx", Catalogue());
    std::filesystem::create_directories(box.appFolder());
    WriteAll(box.appFolder() / "zvx.ini", "RENUMBERINGLEVEL=2\r\nVIEWRENUMBERING=YES\r\n");

    ToolResult listed = box.run({"ls", "c.zvx", "MUSIC"});
    EXPECT_EQ(listed.status, 0) << listed.err;
    EXPECT_EQ(listed.out,
              "song.mp3\t000 000 000 005\tc:\\music\tCD1\tYes\tCD One\t01-02-2003\tAudio: "
              "Album\tTitle\tArtist\tAlbum\tRock\t\t\t007\t\t\t\t3:00\tn/a\t44100\tn/a\n");

    ToolResult raw = box.run({"ls", "c.zvx", "/music/", "--raw"});
    EXPECT_EQ(raw.status, 0) << raw.err;
    EXPECT_EQ(raw.out, kSong + "\n");

    // The sub-view takes the folders below, never the sibling "Music2".
    ToolResult sub = box.run({"ls", "c.zvx", "Music", "--sub", "--raw"});
    EXPECT_EQ(sub.status, 0) << sub.err;
    EXPECT_EQ(sub.out, kLive + "\n" + kSong + "\n");

    ToolResult nested = box.run({"ls", "c.zvx", "music\\live", "--raw"});
    EXPECT_EQ(nested.out, kLive + "\n");
}

TEST(ZvxcatLs, RefusesAFolderThatIsNotThereAndAWrongCall) {
    ToolSandbox box;
    WriteAll(box / "c.zvx", Catalogue());
    ToolResult missing = box.run({"ls", "c.zvx", "Musi"});
    EXPECT_EQ(missing.status, 1);
    EXPECT_NE(missing.err.find("no folder 'Musi'"), std::string::npos) << missing.err;
    EXPECT_TRUE(missing.out.empty());

    EXPECT_EQ(box.run({"ls", "gone.zvx", "Music"}).status, 1);
    EXPECT_EQ(box.run({"ls", "c.zvx"}).status, 2);
    EXPECT_EQ(box.run({"ls", "c.zvx", "Music", "--all"}).status, 2);
}

}  // namespace
}  // namespace zvx::test
