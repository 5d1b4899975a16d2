#include "shell/command_file.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "support/temp_folder.h"

namespace zvx {
namespace {

// A running instance's poll that records what it was asked to load.
struct RunningInstance {
    explicit RunningInstance(Common& common)
        : poll(
              common, [this] { ++raised; },
              [this, &common](const std::string& path) {
                  loaded.push_back(path);
                  pendingAtLoad.push_back(common.pendingDocument);
                  if (onLoad)
                      onLoad();
              }) {}

    CommandFilePoll poll;
    int raised = 0;
    std::vector<std::string> loaded;
    std::vector<std::string> pendingAtLoad;
    std::function<void()> onLoad;
};

class HandOver : public ::testing::Test {
  protected:
    std::string Document(const std::string& name) {
        test::WriteAll(env.folder / name, "doc");
        return (env.folder / name).string();
    }
    std::filesystem::path commandFile() const { return env.folder / kCommandFileName; }

    test::TestEnvironment env;
};

TEST_F(HandOver, SecondInstancesAppendLinesThatLoadInOrderARepeatedPathOnce) {
    const std::string a = Document("a b.zvx"), b = Document("b.zvx"), c = Document("c.zvx");
    for (const std::string& path : {a, a, b, c, a})
        EXPECT_TRUE(HandOverDocument(env.common, path));
    EXPECT_EQ(test::ReadAll(commandFile()),
              a + "\r\n" + a + "\r\n" + b + "\r\n" + c + "\r\n" + a + "\r\n");

    RunningInstance running(env.common);
    running.poll.tick();
    // The same path again loads once, unless another came between.
    EXPECT_EQ(running.loaded, (std::vector<std::string>{a, b, c, a}));
    // Each load takes its path as the pending document, which is cleared afterwards.
    EXPECT_EQ(running.pendingAtLoad, running.loaded);
    EXPECT_EQ(env.common.pendingDocument, "");
    EXPECT_EQ(running.raised, 1);
    EXPECT_EQ(env.screen.statuses, (std::vector<std::string>{kExternalLoadingStatus}));
    EXPECT_FALSE(std::filesystem::exists(commandFile()));
}

TEST_F(HandOver, PathsNamingNoFileAreDroppedAndAnEmptyFileMeansNothing) {
    RunningInstance running(env.common);
    running.poll.tick();  // no command file
    EXPECT_TRUE(HandOverDocument(env.common, (env.folder / "gone.zvx").string()));
    EXPECT_EQ(test::ReadAll(commandFile()), "");
    running.poll.tick();
    EXPECT_EQ(running.raised, 0);
    EXPECT_TRUE(running.loaded.empty());
    EXPECT_TRUE(env.screen.statuses.empty());
    EXPECT_TRUE(env.screen.shown.empty());

    // The poll skips empty lines, missing files and folders.
    const std::string a = Document("a.zvx");
    test::WriteAll(commandFile(), "\r\n" + (env.folder / "gone.zvx").string() + "\r\n" + a +
                                      "\r\n" + env.folder.path().string() + "\r\n");
    running.poll.tick();
    EXPECT_EQ(running.loaded, (std::vector<std::string>{a}));
    EXPECT_FALSE(std::filesystem::exists(commandFile()));
}

TEST_F(HandOver, AnUnwritableCommandFileShowsTheErrorMessage) {
    test::ScriptedScreen screen;
    Common elsewhere(env.folder / "missing-folder", env.folder / "missing-folder", screen);
    EXPECT_FALSE(HandOverDocument(elsewhere, Document("a.zvx")));
    ASSERT_EQ(screen.shown.size(), 1u);
    EXPECT_EQ(screen.shown[0].caption, "ZVX-Error");
    EXPECT_EQ(screen.shown[0].text,
              "Unable To Open Command-File To the Running ZVX-Application!\r\n"
              "Try to Drag & Drop the file(s) directly into the ZVX Window!");
}

TEST_F(HandOver, AFailedTickLeavesTheFileForTheNextAndATickDuringALoadDoesNothing) {
    const std::string a = Document("a.zvx");
    HandOverDocument(env.common, a);
    RunningInstance running(env.common);
    running.onLoad = [] { throw std::runtime_error("load failed"); };
    running.poll.tick();
    EXPECT_TRUE(std::filesystem::exists(commandFile()));
    EXPECT_EQ(env.common.pendingDocument, "");

    // The load waits in a dialog, whose message loop serves the next timer tick.
    running.onLoad = [&running] { running.poll.tick(); };
    running.poll.tick();
    EXPECT_EQ(running.loaded, (std::vector<std::string>{a, a}));
    EXPECT_EQ(running.raised, 2);
    EXPECT_FALSE(std::filesystem::exists(commandFile()));
}

TEST_F(HandOver, TheStartRemovesALeftoverCommandFile) {
    test::WriteAll(commandFile(), Document("a.zvx") + "\r\n");
    EXPECT_TRUE(RemoveLeftoverCommandFile(env.common));
    EXPECT_FALSE(std::filesystem::exists(commandFile()));
    EXPECT_TRUE(RemoveLeftoverCommandFile(env.common));
}

}  // namespace
}  // namespace zvx
