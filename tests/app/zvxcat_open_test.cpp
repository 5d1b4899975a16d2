#include <gtest/gtest.h>

#include "launch/device_redirection.h"
#include "launch/executer_run.h"
#include "platform/catalogue_path.h"
#include "support/catalogue_bytes.h"
#include "tool_sandbox.h"

namespace zvx::test {
namespace {

namespace fs = std::filesystem;

size_t Count(const std::string& text, const std::string& part) {
    size_t count = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

// Entries on a "disc" folder of the sandbox: dawn.mp3 is there, the others are not.
struct Shelf {
    Shelf() {
        disc = fs::absolute(box / "disc");
        fs::create_directory(disc);
        WriteAll(disc / "dawn.mp3", "x");
        const std::string path = CataloguePathFromNative(disc.string());
        std::vector<std::string> lines;
        for (const char* name : {"noon.mp3", "dawn.mp3", "dusk.mp3"})
            lines.push_back(EntryLineOf("00000001", {name, "1", path, "", "0", "Summer"}));
        lines.push_back(EntryLineOf("00000002", {"other.mp3", "1", path}));
        WriteAll(box / "c.zvx", CatalogueBytes({{"Music\\", "", 10, "00000001"},
                                                {"Music\\Live\\", "", 10, "00000002"}},
                                               lines));
    }
    // Where a file of the disc lies on another device.
    fs::path on(const fs::path& device, const std::string& name) const {
        const std::string path = CataloguePathFromNative((disc / name).string());
        return NativeFileOf(replaceme(path, device.string(), CurrentDriveRoots()));
    }

    ToolSandbox box;
    fs::path disc;
};

TEST(ZvxcatOpen, PrintsTheFilesThereAndTellsTheMissingOnesWithTheMediumOfTheEntry) {
    Shelf s;
    ToolResult run = s.box.run({"open", "c.zvx", "Music", "--print"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, (s.disc / "dawn.mp3").string() + "\n");
    EXPECT_EQ(Count(run.err, "File not found on device.\n"), 2u) << run.err;
    EXPECT_NE(run.err.find("Device ID: <NONE>\nDevice description: <Summer>\n"), std::string::npos);

    ToolResult skipAll =
        s.box.run({"open", "c.zvx", "Music", "--sub", "--print", "--on-missing", "skip-all"});
    EXPECT_EQ(skipAll.out, (s.disc / "dawn.mp3").string() + "\n");
    EXPECT_EQ(Count(skipAll.err, "File not found on device."), 1u);

    ToolResult abort = s.box.run({"open", "c.zvx", "Music", "--print", "--on-missing=abort"});
    EXPECT_EQ(abort.status, 0);
    EXPECT_EQ(abort.out, "") << "the run ends at the first missing file";

    EXPECT_EQ(s.box.run({"open", "c.zvx", "Art", "--print"}).status, 1);
    EXPECT_EQ(s.box.run({"open", "c.zvx", "Music", "--on-missing", "attempt"}).status, 2);
}

TEST(ZvxcatOpen, TheRememberedDeviceIsTriedFirstAndAFileMissingThereToo) {
    Shelf s;
    const fs::path copy = fs::absolute(s.box / "copy");
    fs::create_directories(s.on(copy, "noon.mp3").parent_path());
    WriteAll(s.on(copy, "noon.mp3"), "x");
    ToolResult run = s.box.run({"open", "c.zvx", "Music", "--name", "noon.mp3", "--name",
                                "dusk.mp3", "--print", "--device", copy.string()});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, s.on(copy, "noon.mp3").string() + "\n");
    EXPECT_EQ(Count(run.err, "File not found on device."), 1u) << "dusk.mp3 only";
}

}  // namespace
}  // namespace zvx::test
