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

}  // namespace
}  // namespace zvx::test
