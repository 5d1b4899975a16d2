#include <gtest/gtest.h>

#include "support/catalogue_bytes.h"
#include "tool_sandbox.h"

namespace zvx::test {
namespace {

const std::string kTarget =
    CatalogueBytes({{"Music\\", "", 10, "00000000"}, {"Music\\Rock\\", "", 10, "00000001"}},
                   {EntryLineOf("00000001", {"r.mp3"})});
const std::string kSource = CatalogueBytes({{"Rock\\Old\\", "Vinyl", 10, "00000004"}},
                                           {EntryLineOf("00000004", {"o.mp3"})});

TEST(ZvxcatImport, MergesBelowAFolderOrAtTheRootAndKeepsTheSource) {
    ToolSandbox box;
    WriteAll(box / "c.zvx", kTarget);
    WriteAll(box / "S.ZVX", kSource);
    ToolResult under = box.run({"import", "c.zvx", "S.ZVX", "--under", "music"});
    EXPECT_EQ(under.status, 0) << under.err;
    EXPECT_EQ(under.err, "zvxcat: 1 folders and 1 entries merged\n");
    EXPECT_EQ(ReadAll(box / "c.zvx"),
              CatalogueBytes(
                  {{"Music\\", "", 10, "00000000"},
                   {"Music\\Rock\\", "", 10, "00000001"},
                   {"Music\\Rock (2)\\Old\\", "Music\\Vinyl", 10, "00000002"}},
                  {EntryLineOf("00000001", {"r.mp3"}), EntryLineOf("00000002", {"o.mp3"})}, 0));
    EXPECT_EQ(ReadAll(box / "S.ZVX"), kSource);

    WriteAll(box / "c.zvx", kTarget);
    ToolResult root = box.run({"import", "c.zvx", "S.ZVX", "--as-root"});
    EXPECT_EQ(root.status, 0) << root.err;
    EXPECT_NE(ReadAll(box / "c.zvx").find("Rock\\Old\\\r\nVinyl2\r\n00000002\r\n\r\n"),
              std::string::npos);
}

TEST(ZvxcatImport, RefusalsLeaveTheCatalogueAsItWas) {
    ToolSandbox box;
    WriteAll(box / "c.zvx", kTarget);
    WriteAll(box / "s.zvx", kSource);
    WriteAll(box / "s.txt", kSource);
    auto refusal = [&](const std::vector<std::string>& args) {
        ToolResult result = box.run(args);
        EXPECT_EQ(result.status, 1) << result.err;
        EXPECT_EQ(ReadAll(box / "c.zvx"), kTarget);
        return result.err.substr(0, result.err.find('\n'));
    };
    EXPECT_EQ(refusal({"import", "c.zvx", "s.txt", "--as-root"}),
              "Error: The file MUST have the extension \".zvx\" !");
    EXPECT_EQ(refusal({"import", "c.zvx", "s.zvx", "--under", "Jazz"}),
              "zvxcat: no folder 'Jazz' in " + (box / "c.zvx").string());
    WriteAll(box / "full.zvx", CatalogueBytes({{"Top\\", "", 10, "99999999"}}, {}));
    ToolResult full = box.run({"import", "full.zvx", "s.zvx", "--as-root"});
    EXPECT_EQ(full.status, 1);
    EXPECT_EQ(full.err.substr(0, full.err.find('\n')),
              "Error: Error during import: New TOC-IDs are too high.");
    EXPECT_EQ(ReadAll(box / "full.zvx"), CatalogueBytes({{"Top\\", "", 10, "99999999"}}, {}));

    EXPECT_EQ(box.run({"import", "c.zvx", "s.zvx"}).status, 2);
    EXPECT_EQ(box.run({"import", "c.zvx", "s.zvx", "--as-root", "--under", "Music"}).status, 2);
    EXPECT_EQ(box.run({"import", "c.zvx", "--as-root"}).status, 2);
    EXPECT_EQ(ReadAll(box / "c.zvx"), kTarget);
}

TEST(ZvxcatImport, AFilterMakesTheCatalogueOrLeavesNothingAndChangesNothing) {
    ToolSandbox box;
    const auto plugins = box.appFolder() / "PLUGINS";
    std::filesystem::create_directories(plugins);
    // A filter that takes a catalogue as it is, and one that gives up.
    WriteAll(plugins / "pass.sh",
             "#!/bin/sh\ncp \"$ZVX_FILTER_TARGET\" \"$ZVX_HOME/PLUGINS/imported.tmp\"\n");
    WriteAll(plugins / "quit.sh", "#!/bin/sh\nexit 3\n");
    std::filesystem::permissions(plugins / "pass.sh", std::filesystem::perms::owner_all);
    std::filesystem::permissions(plugins / "quit.sh", std::filesystem::perms::owner_all);
    WriteAll(plugins / "pass.zvi", "<name>Pass\n<exe>pass.sh\n");
    WriteAll(plugins / "quit.zvi", "<name>Quit\n<exe>quit.sh\n");
    WriteAll(box / "c.zvx", kTarget);
    WriteAll(box / "s.data", kSource);

    ToolResult passed = box.run({"import", "c.zvx", "s.data", "--as-root", "--filter", "Pass"});
    EXPECT_EQ(passed.status, 0) << passed.err;
    EXPECT_NE(ReadAll(box / "c.zvx").find("Rock\\Old\\\r\n"), std::string::npos);

    WriteAll(box / "c.zvx", kTarget);
    ToolResult quit = box.run({"import", "c.zvx", "s.data", "--as-root", "--filter", "Quit"});
    EXPECT_EQ(quit.status, 1);
    EXPECT_EQ(quit.err.substr(0, quit.err.find('\n')), "zvxcat: External Import-Filter Canceled!");
    EXPECT_EQ(box.run({"import", "c.zvx", "s.data", "--as-root", "--filter", "Nope"}).status, 1);
    EXPECT_EQ(ReadAll(box / "c.zvx"), kTarget);
}

}  // namespace
}  // namespace zvx::test
