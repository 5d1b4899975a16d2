#include <fcntl.h>
#include <pty.h>
#include <signal.h>
#include <sys/file.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "support/catalogue_bytes.h"
#include "tool_sandbox.h"

namespace zvx::test {
namespace {

// A zvxcat run in the sandbox's folders that waits at a question on a pseudo-terminal:
// its work folder stands until it is answered or killed.
class AskingRun {
  public:
    AskingRun(const ToolSandbox& box, const std::vector<std::string>& args) {
        int terminal = -1;
        if (::openpty(&master_, &terminal, nullptr, nullptr, nullptr) != 0)
            return;
        const int none = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
        pid_ = box.start(args, terminal, none, terminal);
        ::close(none);
        ::close(terminal);
    }
    ~AskingRun() {
        kill();
        if (master_ >= 0)
            ::close(master_);
    }

    // Reads what the run shows until the question's choices appear; false when the run
    // ended before.
    bool waitForQuestion() {
        std::string shown;
        char buffer[256];
        while (shown.find("[n]o? ") == std::string::npos) {
            ssize_t got = ::read(master_, buffer, sizeof buffer);
            if (got <= 0)
                return false;
            shown.append(buffer, static_cast<size_t>(got));
        }
        return true;
    }
    void answer(const std::string& line) {
        ASSERT_EQ(::write(master_, line.data(), line.size()), static_cast<ssize_t>(line.size()));
    }
    // The exit status, -1 when the run did not exit by itself.
    int wait() { return WaitForExit(std::exchange(pid_, -1)); }
    // kill -9, as a person or a system under pressure may end it.
    void kill() {
        if (pid_ < 0)
            return;
        ::kill(pid_, SIGKILL);
        wait();
    }

  private:
    int master_ = -1;
    pid_t pid_ = -1;
};

std::vector<std::filesystem::path> WorkFolders(const ToolSandbox& box) {
    std::vector<std::filesystem::path> found;
    for (const auto& entry : std::filesystem::directory_iterator(box.tmpFolder()))
        found.push_back(entry.path());
    return found;
}

const std::string kCatalogue = CatalogueBytes({{"A\\", "", 10, "00000000"}}, {});

TEST(ZvxcatLeftovers, TheNextRunClearsTheWorkFolderOfAKilledRun) {
    ToolSandbox box;
    WriteAll(box / "c.zvx", kCatalogue);
    // A folder of that name that no run holds: not a work folder of zvxcat's.
    std::filesystem::create_directory(box.tmpFolder() / "zvxcat-Other1");
    {
        AskingRun killed(box, {"rmdir", "c.zvx", "A"});
        ASSERT_TRUE(killed.waitForQuestion());
        killed.kill();
    }
    ASSERT_EQ(WorkFolders(box).size(), 2u);
    ToolResult next = box.run({"folders", "c.zvx"});
    EXPECT_EQ(next.status, 0) << next.err;
    EXPECT_EQ(WorkFolders(box), std::vector{box.tmpFolder() / "zvxcat-Other1"});
    EXPECT_EQ(ReadAll(box / "c.zvx"), kCatalogue);
}

TEST(ZvxcatLeftovers, ALiveRunKeepsItsWorkFolderWhileAnotherRuns) {
    ToolSandbox box;
    WriteAll(box / "c.zvx", kCatalogue);
    AskingRun live(box, {"rmdir", "c.zvx", "A"});
    ASSERT_TRUE(live.waitForQuestion());
    const std::vector<std::filesystem::path> held = WorkFolders(box);
    ASSERT_EQ(held.size(), 1u);
    EXPECT_EQ(box.run({"info", "c.zvx"}).status, 0);
    EXPECT_EQ(WorkFolders(box), held);
    live.answer("y\n");
    EXPECT_EQ(live.wait(), 0);
    EXPECT_TRUE(WorkFolders(box).empty());
    EXPECT_EQ(ReadAll(box / "c.zvx"), CatalogueBytes({}, {}));
}

TEST(ZvxcatLeftovers, WritingACatalogueClearsTheCopiesBesideItThatNoRunHolds) {
    ToolSandbox box;
    WriteAll(box / "c.zvx", kCatalogue);
    for (const char* name : {"c.zvx.part-Dead01", "c.zvx.part-Live01", "c.zvx.backup"})
        WriteAll(box / name, "half a catalogue");
    // A run between writing its copy and renaming it holds the copy.
    const int live = ::open((box / "c.zvx.part-Live01").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(::flock(live, LOCK_EX), 0);
    ToolResult made = box.run({"mkdir", "c.zvx", "B"});
    EXPECT_EQ(made.status, 0) << made.err;
    EXPECT_FALSE(std::filesystem::exists(box / "c.zvx.part-Dead01"));
    EXPECT_TRUE(std::filesystem::exists(box / "c.zvx.part-Live01"));
    EXPECT_TRUE(std::filesystem::exists(box / "c.zvx.backup"));
    ::close(live);
    EXPECT_EQ(ReadAll(box / "c.zvx"),
              CatalogueBytes({{"A\\", "", 10, "00000000"}, {"B\\", "", 10, "00000001"}}, {}));
}

}  // namespace
}  // namespace zvx::test
