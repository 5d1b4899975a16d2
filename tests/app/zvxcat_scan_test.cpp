#include <gtest/gtest.h>

#include "tool_sandbox.h"

namespace zvx::test {
namespace {

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
