#include "platform/program_start.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "platform/file_error.h"

extern char** environ;

namespace zvx {

namespace {

std::vector<std::string> EnvironmentWith(
    const std::vector<std::pair<std::string, std::string>>& added) {
    std::vector<std::string> variables;
    for (char** entry = environ; *entry; ++entry) {
        const std::string_view variable(*entry);
        bool replaced = false;
        for (const auto& [name, value] : added)
            replaced = replaced || variable.starts_with(name + "=");
        if (!replaced)
            variables.emplace_back(variable);
    }
    for (const auto& [name, value] : added)
        variables.push_back(name + "=" + value);
    return variables;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

}  // namespace

ProgramStarts::~ProgramStarts() {
    reapEnded();
}

int ProgramStarts::start(const std::vector<std::string>& arguments,
                         const std::filesystem::path& workingFolder,
                         const std::vector<std::pair<std::string, std::string>>& environment) {
    reapEnded();
    if (arguments.empty())
        throw FileError(ErrorNumberFromErrno(ENOENT), "", "No program to start");
    std::vector<std::string> argumentTexts = arguments;
    std::vector<std::string> variables = EnvironmentWith(environment);
    std::vector<char*> argv = Pointers(argumentTexts);
    std::vector<char*> envp = Pointers(variables);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, workingFolder.c_str());
    pid_t pid = 0;
    const int err = posix_spawn(&pid, argv[0], &actions, nullptr, argv.data(), envp.data());
    posix_spawn_file_actions_destroy(&actions);
    if (err != 0)
        throw FileError(ErrorNumberFromErrno(err), arguments[0],
                        "Cannot start " + arguments[0] + ": " + std::strerror(err));
    started_.push_back(pid);
    return pid;
}

int ProgramStarts::waitForExit(int pid) {
    if (std::erase(started_, pid) == 0)
        return -1;
    int status = 0;
    while (waitpid(pid, &status, 0) < 0) {
        if (errno != EINTR)
            return -1;
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void ProgramStarts::reapEnded() {
    std::erase_if(started_, [](int pid) { return waitpid(pid, nullptr, WNOHANG) != 0; });
}

}  // namespace zvx
