#include <gtest/gtest.h>

#include "support/catalogue_bytes.h"
#include "tool_sandbox.h"

namespace zvx::test {
namespace {

const std::vector<FolderSpec> kFolders = {{"Music\\", "", 10, "00000001"},
                                          {"Music\\Sub\\", "", 10, "00000002"}};

std::string Song(const std::string& id, const std::string& name, const std::string& album = "A",
                 const std::string& bitrate = "128", const std::string& year = "1999") {
    return EntryLineOf(
        id,
        {name,    "1000",   "c:\\music", "DISC",  "0",     "My disc", "04-07-2001", "Audio: Album",
         "Title", "Artist", album,       "Rock",  "",      "",        "07",         year,
         "",      "",       "3:45",      bitrate, "44100", "Stereo"});
}

struct Catalogue {
    Catalogue() { WriteAll(box / "c.zvx", CatalogueBytes(kFolders, lines)); }
    std::string bytes() const { return ReadAll(box / "c.zvx"); }

    ToolSandbox box;
    std::vector<std::string> lines = {Song("00000001", "a.mp3"), Song("00000001", "b.mp3"),
                                      Song("00000001", "a.mp3", "twin"), Song("00000002", "a.mp3")};
};

TEST(ZvxcatEdit, TypesTheValuesIntoTheFirstEntryOfTheName) {
    Catalogue c;
    ToolResult edited = c.box.run({"edit", "c.zvx", "music", "a.mp3", "bitrate=320", "year=85",
                                   "size=1 234 567", "frequency=n/a", "11=New"});
    EXPECT_EQ(edited.status, 0) << edited.err;
    EXPECT_EQ(edited.err, "1 entry changed\n");
    std::vector<std::string> expected = c.lines;
    expected[0] = EntryLineOf(
        "00000001",
        {"a.mp3", "1234567", "c:\\music", "DISC", "0", "My disc", "04-07-2001", "Audio: Album",
         "Title", "Artist",  "New",       "Rock", "",  "",        "07",         "1985",
         "",      "",        "3:45",      "320",  "0", "Stereo"});
    EXPECT_EQ(c.bytes(), CatalogueBytes(kFolders, expected));

    ToolResult again = c.box.run({"edit", "c.zvx", "Music", "a.mp3", "bitrate=320 kbps"});
    EXPECT_EQ(again.err, "0 entries changed\n") << "the form's text stores the same number";
    ToolResult none = c.box.run({"edit", "c.zvx", "Music", "x.mp3", "title=T"});
    EXPECT_EQ(none.status, 0);
    EXPECT_EQ(c.bytes(), CatalogueBytes(kFolders, expected));

    EXPECT_EQ(c.box.run({"edit", "c.zvx", "Music", "a.mp3", "path=d:"}).status, 2);
    EXPECT_EQ(c.box.run({"edit", "c.zvx", "Music", "a.mp3", "read-only=1"}).status, 2);
    EXPECT_EQ(c.box.run({"edit", "c.zvx", "Music", "a.mp3", "genre=No such genre"}).status, 2);
    EXPECT_EQ(c.box.run({"edit", "c.zvx", "Art", "a.mp3", "title=T"}).status, 1);
}

TEST(ZvxcatSet, LocksTheFieldsOfTheSelectedEntries) {
    Catalogue c;
    ToolResult set =
        c.box.run({"set", "c.zvx", "Music", "--sub", "--name", "a.mp3", "album=X", "year=7"});
    EXPECT_EQ(set.status, 0) << set.err;
    EXPECT_EQ(set.err, "3 entries changed\n");
    EXPECT_EQ(c.bytes(),
              CatalogueBytes(kFolders, {Song("00000001", "a.mp3", "X", "128", "1997"), c.lines[1],
                                        Song("00000001", "a.mp3", "X", "128", "1997"),
                                        Song("00000002", "a.mp3", "X", "128", "1997")}));

    ToolResult text = c.box.run({"set", "c.zvx", "Music", "type=Document: Text"});
    EXPECT_EQ(text.err, "2 entries changed\n") << "a pair serves the first of two identical lines";
    EXPECT_EQ(c.box.run({"set", "c.zvx", "Music", "--name", "x.mp3", "album=Y"}).err,
              "0 entries changed\n");
    EXPECT_EQ(c.box.run({"set", "c.zvx", "Music", "track=3"}).status, 2);
    EXPECT_EQ(c.box.run({"set", "c.zvx", "Music", "type=Audio"}).status, 2);
    EXPECT_EQ(c.box.run({"set", "c.zvx", "Music"}).status, 2);
    EXPECT_EQ(c.box.run({"set", "c.zvx", "Art", "album=Y"}).status, 1);
}

}  // namespace
}  // namespace zvx::test
