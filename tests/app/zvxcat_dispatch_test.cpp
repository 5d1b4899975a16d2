#include <gtest/gtest.h>

#include "tool_sandbox.h"

namespace zvx::test {
namespace {

TEST(ZvxcatDispatch, HelpSucceedsAndWrongUseExitsWithTwo) {
    ToolSandbox box;
    ToolResult help = box.run({"--help"});
    EXPECT_EQ(help.status, 0);
    for (const char* name : {"new", "info", "settings"}) {
        EXPECT_NE(help.out.find(std::string("  ") + name + " "), std::string::npos) << name;
    }
    ToolResult newHelp = box.run({"new", "--help"});
    EXPECT_EQ(newHelp.status, 0);
    EXPECT_NE(newHelp.out.find("Usage: zvxcat new FILE"), std::string::npos);

    ToolResult unknown = box.run({"frobnicate"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_NE(unknown.err.find("unknown command"), std::string::npos) << unknown.err;
    EXPECT_EQ(box.run({}).status, 2);
    EXPECT_EQ(box.run({"info"}).status, 2);
    EXPECT_EQ(box.run({"info", "a", "b"}).status, 2);
    EXPECT_EQ(box.run({"new", "--overwrite", "x.zvx"}).status, 2);
    // Wrong use is found before anything is set up.
    EXPECT_FALSE(std::filesystem::exists(box.appFolder()));
}

TEST(ZvxcatDispatch, RemovesItsWorkFolderAfterSuccessAndFailureAndFindsItsApplicationFolder) {
    ToolSandbox box;
    EXPECT_EQ(box.run({"settings", "set", "K", "v"}).status, 0);
    ToolResult missing = box.run({"info", "missing.zvx"});
    EXPECT_EQ(missing.status, 1);
    EXPECT_TRUE(missing.out.empty());
    EXPECT_NE(missing.err.find("missing.zvx"), std::string::npos) << missing.err;
    EXPECT_TRUE(std::filesystem::is_directory(box.appFolder()));
    EXPECT_TRUE(std::filesystem::is_empty(box.tmpFolder()));

    box.zvxHome.clear();
    EXPECT_EQ(box.run({"settings", "set", "K", "v"}).status, 0);
    EXPECT_EQ(ReadAll(box.dataFolder() / "zvx" / "zvx.ini"), "K=v\r\n");

    box.zvxHome = "/";
    ToolResult root = box.run({"settings", "get", "K"});
    EXPECT_EQ(root.status, 1);
    EXPECT_NE(root.err.find("root-directory"), std::string::npos) << root.err;
}

}  // namespace
}  // namespace zvx::test
