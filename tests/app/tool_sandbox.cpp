#include "tool_sandbox.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace zvx::test {

ToolSandbox::ToolSandbox() : work_(root_ / "work") {
    zvxHome = appFolder().string();
    for (const char* name : {"work", "home", "data", "config", "tmp"}) {
        std::filesystem::create_directory(root_ / name);
    }
}

pid_t ToolSandbox::start(std::vector<std::string> args, int in, int out, int err) const {
    std::vector<std::string> env = {"HOME=" + (root_ / "home").string(),
                                    "XDG_DATA_HOME=" + dataFolder().string(),
                                    "XDG_CONFIG_HOME=" + (root_ / "config").string(),
                                    "TMPDIR=" + tmpFolder().string(), "PATH=/usr/bin:/bin"};
    if (!zvxHome.empty())
        env.push_back("ZVX_HOME=" + zvxHome);
    args.insert(args.begin(), ZVXCAT_PATH);
    std::vector<char*> argv, envp;
    for (auto& a : args)
        argv.push_back(a.data());
    for (auto& e : env)
        envp.push_back(e.data());
    argv.push_back(nullptr);
    envp.push_back(nullptr);

    const pid_t pid = ::fork();
    if (pid != 0)
        return pid;
    ::dup2(in, 0);
    ::dup2(out, 1);
    ::dup2(err, 2);
    if (fileSizeLimit > 0) {
        // SIGXFSZ ignored, so that a write past the limit fails instead of ending the run.
        const rlimit limit{fileSizeLimit, fileSizeLimit};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, SIG_IGN);
    }
    if (::chdir(work_.c_str()) == 0)
        ::execve(ZVXCAT_PATH, argv.data(), envp.data());
    ::_exit(127);
}

ToolResult ToolSandbox::run(const std::vector<std::string>& args) const {
    const std::filesystem::path outFile = root_ / "stdout", errFile = root_ / "stderr";
    const int in = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    const int out = ::open(outFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const int err = ::open(errFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const pid_t pid = start(args, in, out, err);
    for (int fd : {in, out, err})
        ::close(fd);
    ToolResult result;
    if (pid < 0)
        return result;
    result.status = WaitForExit(pid);
    result.out = ReadAll(outFile);
    result.err = ReadAll(errFile);
    return result;
}

int WaitForExit(pid_t pid) {
    int status = 0;
    ::waitpid(pid, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace zvx::test
