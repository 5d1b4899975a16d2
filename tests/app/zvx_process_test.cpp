// The window program started as a process, offscreen, the way a desktop starts it:
// with or without a document, and a second time while it runs.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class ZvxProcess : public ::testing::Test {
  protected:
    void SetUp() override {
        fs::create_directories(app());
        // No first-run question: it would wait for an answer.
        test::WriteAll(app() / "zvx.ini", "FIRSTSTART=no\r\n");
    }
    void TearDown() override {
        for (pid_t pid : running_) {
            kill(pid, SIGKILL);
            waitpid(pid, nullptr, 0);
        }
    }
    fs::path app() const { return root_ / "app"; }

    pid_t start(const std::vector<std::string>& args) {
        pid_t pid = fork();
        if (pid == 0) {
            setenv("ZVX_HOME", app().c_str(), 1);
            setenv("HOME", root_.path().c_str(), 1);
            setenv("XDG_CONFIG_HOME", (root_ / "config").c_str(), 1);
            setenv("XDG_DATA_HOME", (root_ / "data").c_str(), 1);
            setenv("QT_QPA_PLATFORM", "offscreen", 1);
            std::vector<char*> argv{const_cast<char*>(ZVX_PATH)};
            for (const std::string& a : args)
                argv.push_back(const_cast<char*>(a.c_str()));
            argv.push_back(nullptr);
            execv(ZVX_PATH, argv.data());
            _exit(127);
        }
        running_.push_back(pid);
        return pid;
    }

    // Whether the condition comes true within the time a start may take.
    static bool eventually(const std::function<bool()>& condition) {
        for (auto waited = 0ms; waited < 20s; waited += 50ms) {
            if (condition())
                return true;
            std::this_thread::sleep_for(50ms);
        }
        return false;
    }
    // The exit status of a process that must end by itself within the time.
    int waitForExit(pid_t pid) {
        int status = 0;
        if (!eventually([&] { return waitpid(pid, &status, WNOHANG) == pid; }))
            return -2;
        std::erase(running_, pid);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    static bool appears(const fs::path& path) {
        return eventually([&] { return fs::exists(path); });
    }

    test::TempFolder root_;
    std::vector<pid_t> running_;
};

TEST_F(ZvxProcess, ADocumentOnTheCommandLineOpensAndASecondStartHandsItsPathOver) {
    // Quotes around a path with blanks: the desktop passes it in pieces.
    const fs::path first = root_ / "my music.zvx", second = root_ / "films.zvx";
    for (const fs::path& file : {first, second})
        test::WriteAll(file, test::CatalogueBytes({}, {}));
    start({"\"" + (root_ / "my").string(), "music.zvx\""});
    // The working copy may be seen while its bytes are still being copied.
    EXPECT_TRUE(eventually(
        [&] { return test::ReadAll(app() / "Document 1.tmp") == test::ReadAll(first); }));

    EXPECT_EQ(waitForExit(start({second.string()})), 0);
    EXPECT_TRUE(appears(app() / "Document 2.tmp"));

    // Without a path, a second start ends at once and leaves no trace.
    EXPECT_EQ(waitForExit(start({})), 0);
    EXPECT_FALSE(fs::exists(app() / "zvxopen.tmp"));
}

}  // namespace
}  // namespace zvx
