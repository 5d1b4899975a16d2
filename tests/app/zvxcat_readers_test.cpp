// What an add would read from a file: its tags and stream, and the fields of its name.

#include <gtest/gtest.h>

#include <filesystem>

#include "tool_sandbox.h"

namespace zvx::test {
namespace {

TEST(ZvxcatTags, PrintsWhatTheReadersOfAnAddFind) {
    ToolSandbox box;
    WriteAll(box / "a.mp3", "\xFF\xFB\x90\x64");
    std::filesystem::resize_file(box / "a.mp3", 4'800'000);
    ToolResult tags = box.run({"tags", "a.mp3"});
    EXPECT_EQ(tags.status, 0) << tags.err;
    EXPECT_NE(tags.out.find("HasID3Tag: False\nTagTitle: \n"), std::string::npos) << tags.out;
    EXPECT_NE(tags.out.find("\nStreamSummary: MPEG 1 Layer 3 Bitrate: 128 Freq: 44100 Mode: "
                            "Dual Channel Length: 5:00\n"),
              std::string::npos)
        << tags.out;

    ToolResult missing = box.run({"tags", "gone.mp3"});
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(missing.out, "");
    EXPECT_NE(missing.err.find("gone.mp3"), std::string::npos) << missing.err;
}

TEST(ZvxcatScan, PrintsTheScannedFieldsOfCatalogueAndNativePaths) {
    ToolSandbox box;
    ToolResult scanned = box.run({"scan", "c:\\Pink\\Pink - Album\\03 - Artist - Song_Name.mp3"});
    EXPECT_EQ(scanned.status, 0) << scanned.err;
    EXPECT_EQ(scanned.out,
              "Artist: Artist\nTitle: Song Name\nAlbum: Album\nProducer: \nTrack: 3\n");

    ToolResult native = box.run({"scan", "/m/Band - Live/07 Song.mp3", "--scheme", "$s - $a"});
    EXPECT_EQ(native.out, "Artist: Band\nTitle: Song\nAlbum: Live\nProducer: \nTrack: 7\n");

    ToolResult illegal = box.run({"scan", "a.mp3", "--scheme", "$A - $N"});
    EXPECT_EQ(illegal.status, 2);
    EXPECT_NE(illegal.err.find("Illegal Scan-Scheme Declaration!"), std::string::npos);
}

}  // namespace
}  // namespace zvx::test
