#include "tool_sandbox.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <csignal>

namespace zvx::test {

namespace {

// Lowers this process's file size limit while the tool is started: the tool inherits
// the limit, and SIGXFSZ ignored, so that a write past it fails instead of ending it.
class InheritedFileSizeLimit {
  public:
    explicit InheritedFileSizeLimit(uint64_t limit) : active_(limit > 0) {
        if (!active_)
            return;
        ::getrlimit(RLIMIT_FSIZE, &old_);
        rlimit lowered = old_;
        lowered.rlim_cur = static_cast<rlim_t>(limit);
        ::setrlimit(RLIMIT_FSIZE, &lowered);
        oldHandler_ = std::signal(SIGXFSZ, SIG_IGN);
    }
    ~InheritedFileSizeLimit() {
        if (!active_)
            return;
        ::setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, oldHandler_);
    }

  private:
    bool active_;
    rlimit old_{};
    void (*oldHandler_)(int) = SIG_DFL;
};

}  // namespace

ToolSandbox::ToolSandbox() : work_(root_ / "work") {
    zvxHome = appFolder().string();
    for (const char* name : {"work", "home", "data", "config", "tmp"}) {
        std::filesystem::create_directory(root_ / name);
    }
}

ToolResult ToolSandbox::run(const std::vector<std::string>& args) const {
    std::vector<std::string> env = {"HOME=" + (root_ / "home").string(),
                                    "XDG_DATA_HOME=" + dataFolder().string(),
                                    "XDG_CONFIG_HOME=" + (root_ / "config").string(),
                                    "TMPDIR=" + tmpFolder().string(), "PATH=/usr/bin:/bin"};
    if (!zvxHome.empty())
        env.push_back("ZVX_HOME=" + zvxHome);
    std::vector<std::string> argStrings = {ZVXCAT_PATH};
    argStrings.insert(argStrings.end(), args.begin(), args.end());

    std::vector<char*> argv, envp;
    for (auto& a : argStrings)
        argv.push_back(a.data());
    for (auto& e : env)
        envp.push_back(e.data());
    argv.push_back(nullptr);
    envp.push_back(nullptr);

    std::filesystem::path outFile = root_ / "stdout", errFile = root_ / "stderr";
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, outFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                     0600);
    posix_spawn_file_actions_addopen(&actions, 2, errFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                     0600);
    posix_spawn_file_actions_addchdir_np(&actions, work_.c_str());
    pid_t pid = 0;
    int spawned = 0;
    {
        InheritedFileSizeLimit limit(fileSizeLimit);
        spawned = posix_spawn(&pid, ZVXCAT_PATH, &actions, nullptr, argv.data(), envp.data());
    }
    posix_spawn_file_actions_destroy(&actions);

    ToolResult result;
    if (spawned != 0)
        return result;
    int wstatus = 0;
    waitpid(pid, &wstatus, 0);
    if (WIFEXITED(wstatus))
        result.status = WEXITSTATUS(wstatus);
    result.out = ReadAll(outFile);
    result.err = ReadAll(errFile);
    return result;
}

}  // namespace zvx::test
