#include "platform/registration.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <system_error>

#include "common/common.h"
#include "common/field_text.h"
#include "store/catalogue_format.h"

extern char** environ;

namespace zvx {

namespace {

std::string Env(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

// An XDG base folder: the variable when it holds an absolute path, else the default
// below the home folder.
std::filesystem::path BaseFolder(const std::string& variable, const std::string& home,
                                 const std::filesystem::path& defaultBelowHome) {
    std::filesystem::path folder = variable;
    if (folder.is_absolute())
        return folder;
    return std::filesystem::path(home.empty() ? "." : home) / defaultBelowHome;
}

std::filesystem::path ConfigHome(const RegistrationEnvironment& env) {
    return BaseFolder(env.xdgConfigHome, env.home, ".config");
}

std::filesystem::path DataHome(const RegistrationEnvironment& env) {
    return BaseFolder(env.xdgDataHome, env.home, std::filesystem::path(".local") / "share");
}

// Single writes are not checked: a failure leaves the file as it was or incomplete.
void WriteTextFile(const std::filesystem::path& path, const std::string& text) {
    std::error_code ec;
    std::filesystem::create_directories(path.parent_path(), ec);
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << text;
}

std::string ProgramInfoText(const Common& common, std::string_view version) {
    return "[Information]\n"
           "ZVXPath=" +
           CleanFieldText(common.applicationFolder().string()) + "\n" +
           "ZVXVersion=" + std::string(version) + "\n" + "InterfaceVersion=" + kInterfaceVersion +
           "\n" + "FileVersion=" + std::to_string(kCurrentFormatVersion) + "\n";
}

std::string MimePackageText() {
    return std::string(
               "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
               "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
               "  <mime-type type=\"") +
           kCatalogueMimeType +
           "\">\n"
           "    <comment>ZVX-Document (Morrowfen)</comment>\n"
           "    <glob pattern=\"*.zvx\"/>\n"
           "  </mime-type>\n"
           "</mime-info>\n";
}

// One quoted argument of an Exec line: ", `, $ and \ take a backslash, % is doubled.
std::string ExecArgument(const std::string& text) {
    std::string quoted = "\"";
    for (char c : text) {
        if (c == '"' || c == '`' || c == '$' || c == '\\')
            quoted += '\\';
        if (c == '%')
            quoted += '%';
        quoted += c;
    }
    return quoted + "\"";
}

// A desktop entry's string value, in which a backslash starts an escape.
std::string DesktopValue(const std::string& text) {
    std::string escaped;
    for (char c : text) {
        if (c == '\\')
            escaped += "\\\\";
        else if (c == '\n')
            escaped += "\\n";
        else if (c == '\r')
            escaped += "\\r";
        else if (c == '\t')
            escaped += "\\t";
        else
            escaped += c;
    }
    return escaped;
}

// NoDisplay: the entry only opens files, as a menu entry is the installer's business.
std::string DesktopEntryText(const std::filesystem::path& programPath) {
    return std::string("[Desktop Entry]\n") + "Type=Application\n" + "Name=ZVX\n" +
           "Exec=" + DesktopValue(ExecArgument(programPath.string())) + " %f\n" +
           "MimeType=" + kCatalogueMimeType + ";\n" + "Terminal=false\n" + "NoDisplay=true\n";
}

std::optional<std::filesystem::path> FindTool(const std::string& name,
                                              const std::string& searchPath) {
    size_t start = 0;
    while (start <= searchPath.size()) {
        size_t end = searchPath.find(':', start);
        if (end == std::string::npos)
            end = searchPath.size();
        std::filesystem::path folder = searchPath.substr(start, end - start);
        std::error_code ec;
        std::filesystem::path candidate = folder / name;
        // Relative entries would depend on the working folder: they are passed over.
        if (folder.is_absolute() && std::filesystem::is_regular_file(candidate, ec) &&
            ::access(candidate.c_str(), X_OK) == 0)
            return candidate;
        start = end + 1;
    }
    return std::nullopt;
}

// Runs the tool on one folder, without a shell and without output, and waits for it.
// Its exit status does not matter.
void RunQuietly(const std::filesystem::path& tool, const std::filesystem::path& folder) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, 1, 2);
    std::string program = tool.string(), argument = folder.string();
    char* argv[] = {program.data(), argument.data(), nullptr};
    pid_t pid = 0;
    if (posix_spawn(&pid, program.c_str(), &actions, nullptr, argv, environ) == 0) {
        int status = 0;
        while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
        }
    }
    posix_spawn_file_actions_destroy(&actions);
}

void RefreshDatabase(const RegistrationEnvironment& env, const std::string& toolName,
                     const std::filesystem::path& folder) {
    if (auto tool = FindTool(toolName, env.searchPath))
        RunQuietly(*tool, folder);
}

}  // namespace

RegistrationEnvironment CurrentRegistrationEnvironment(const std::filesystem::path& programPath) {
    return {programPath, Env("XDG_CONFIG_HOME"), Env("XDG_DATA_HOME"), Env("HOME"), Env("PATH")};
}

std::filesystem::path ProgramInfoFile(const RegistrationEnvironment& env) {
    return ConfigHome(env) / "Morrowfen" / "ZVX.conf";
}

std::filesystem::path MimePackageFile(const RegistrationEnvironment& env) {
    return DataHome(env) / "mime" / "packages" / "zvx.xml";
}

std::filesystem::path DesktopEntryFile(const RegistrationEnvironment& env) {
    return DataHome(env) / "applications" / "zvx.desktop";
}

void PublishRegistryInfo(const Common& common, const RegistrationEnvironment& env,
                         std::string_view version) {
    WriteTextFile(ProgramInfoFile(env), ProgramInfoText(common, version));
}

void RegisterFileTypes(const Common& common, const RegistrationEnvironment& env) {
    common.screen().status("Registering ZVX-FileTypes...");
    WriteTextFile(MimePackageFile(env), MimePackageText());
    WriteTextFile(DesktopEntryFile(env), DesktopEntryText(env.programPath));
    RefreshDatabase(env, "update-mime-database", DataHome(env) / "mime");
    RefreshDatabase(env, "update-desktop-database", DataHome(env) / "applications");
    common.screen().message("", "FileType-Registration completed.", MsgButtons::OkOnly,
                            MsgIcon::Information);
}

}  // namespace zvx
