#include <gtest/gtest.h>

#include "support/catalogue_bytes.h"
#include "tool_sandbox.h"

namespace zvx::test {
namespace {

TEST(ZvxcatFolders, MkdirMakesFoldersThatFoldersLists) {
    ToolSandbox box;
    WriteAll(box / "c.zvx", CatalogueBytes({}, {}));
    EXPECT_EQ(box.run({"folders", "c.zvx"}).out, "");

    ToolResult music = box.run({"mkdir", "c.zvx", "Music"});
    EXPECT_EQ(music.status, 0) << music.err;
    EXPECT_EQ(music.out, "00000000\n");
    ToolResult rock =
        box.run({"mkdir", "c.zvx", "music/Rock", "--description", "Loud", "--icon=4"});
    EXPECT_EQ(rock.status, 0) << rock.err;
    EXPECT_EQ(rock.out, "00000001\n");
    EXPECT_EQ(ReadAll(box / "c.zvx"),
              CatalogueBytes(
                  {{"Music\\", "", 10, "00000000"}, {"Music\\Rock\\", "Loud", 4, "00000001"}}, {}));
    EXPECT_EQ(box.run({"mkdir", "c.zvx", "\\AC/DC"}).status, 0);

    ToolResult listed = box.run({"folders", "c.zvx"});
    EXPECT_EQ(listed.status, 0) << listed.err;
    EXPECT_EQ(listed.out,
              "AC/DC\t00000002\t10\t\nMusic\t00000000\t10\t\nMusic\\Rock\t00000001\t4\tLoud\n");
}

TEST(ZvxcatFolders, MkdirRefusesLikeTheWindow) {
    ToolSandbox box;
    const std::string bytes = CatalogueBytes({{"Music\\", "", 10, "00000000"},
                                              {"x y\\", "", 10, "00000001"},
                                              {"\334ber\\", "", 10, "00000002"}},
                                             {});
    WriteAll(box / "c.zvx", bytes);
    auto refusal = [&](const std::vector<std::string>& args) {
        ToolResult result = box.run(args);
        EXPECT_EQ(result.status, 1) << result.err;
        EXPECT_EQ(ReadAll(box / "c.zvx"), bytes);
        return result.err.substr(0, result.err.find('\n'));
    };
    EXPECT_EQ(refusal({"mkdir", "c.zvx", "MUSIC"}),
              "Error: The Folder \"MUSIC\" does already exist!");
    // The name as it will be stored, in either code page.
    EXPECT_EQ(refusal({"mkdir", "c.zvx", "  x\ny"}),
              "Error: The Folder \"x y\" does already exist!");
    EXPECT_EQ(refusal({"mkdir", "c.zvx", "x\x01y"}),
              "Error: The Folder \"x y\" does already exist!");
    EXPECT_EQ(refusal({"mkdir", "c.zvx", "\303\274BER"}),
              "Error: The Folder \"\303\274BER\" does already exist!");
    EXPECT_EQ(refusal({"mkdir", "c.zvx", "x", "--icon", "2"}), "Error: Please select an Icon!");
    EXPECT_EQ(refusal({"mkdir", "c.zvx", "Art/Modern"}),
              "zvxcat: no folder 'Art' in " + (box / "c.zvx").string());
    EXPECT_EQ(box.run({"mkdir", "c.zvx", "x", "--icon"}).status, 2);
}

TEST(ZvxcatFolders, RenameMvdirAndRmdirChangeTheTree) {
    ToolSandbox box;
    WriteAll(box / "c.zvx",
             CatalogueBytes({{"Music\\", "", 10, "00000000"},
                             {"Music\\Rock\\", "Loud", 4, "00000001"},
                             {"Music2\\", "", 10, "00000002"}},
                            {EntryLineOf("00000001", {"r.mp3"}), EntryLineOf("00000002", {"x"})}));
    ToolResult renamed = box.run({"rename", "c.zvx", "music", "Sound", "--icon", "12"});
    EXPECT_EQ(renamed.status, 0) << renamed.err;
    EXPECT_EQ(box.run({"folders", "c.zvx"}).out,
              "Sound\t00000000\t12\t\nSound\\2\t00000002\t10\t\nSound\\Rock\t00000001\t4\tLoud\n");

    ToolResult moved = box.run({"mvdir", "c.zvx", "Sound/Rock", "\\"});
    EXPECT_EQ(moved.status, 0) << moved.err;
    ToolResult itself = box.run({"mvdir", "c.zvx", "Sound", "sound/2"});
    EXPECT_EQ(itself.status, 1);
    EXPECT_NE(itself.err.find("A Folder cannot be a Sub-Folder of itself!"), std::string::npos);

    // Without --yes and without a terminal the question is answered No.
    ToolResult asked = box.run({"rmdir", "c.zvx", "rock"});
    EXPECT_EQ(asked.status, 1);
    EXPECT_NE(asked.err.find("Are you sure that you want delete"), std::string::npos);
    ToolResult deleted = box.run({"rmdir", "c.zvx", "rock", "--yes"});
    EXPECT_EQ(deleted.status, 0) << deleted.err;
    EXPECT_EQ(ReadAll(box / "c.zvx"),
              CatalogueBytes({{"Sound\\", "", 12, "00000000"}, {"Sound\\2\\", "", 10, "00000002"}},
                             {EntryLineOf("00000002", {"x"})}));
}

TEST(ZvxcatFolders, RenameRefusesAnEntryOffsetShortOfTheFolderTable) {
    ToolSandbox box;
    std::string bytes = CatalogueBytes(
        {{"Music\\", "", 10, "00000000"}, {"Music\\Rock\\", "", 10, "00000001"}}, {});
    bytes.replace(1, 4, std::string("\x00\x00\x00\x08", 4));  // the offset of an empty TOC
    WriteAll(box / "c.zvx", bytes);
    ToolResult renamed = box.run({"rename", "c.zvx", "music", "Sound"});
    EXPECT_EQ(renamed.status, 1);
    EXPECT_NE(renamed.err.find("entry offset in the header of " + (box / "c.zvx").string() +
                               " (8) is not the end of its folder table (55)"),
              std::string::npos)
        << renamed.err;
    EXPECT_EQ(ReadAll(box / "c.zvx"), bytes);
}

}  // namespace
}  // namespace zvx::test
