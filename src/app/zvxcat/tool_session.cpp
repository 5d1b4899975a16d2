#include "tool_session.h"

#include <system_error>

#include "command.h"
#include "common/application_folder.h"
#include "shell/start_checks.h"

namespace zvx::cat {

namespace {

std::filesystem::path ExecutableFolder() {
    std::error_code ec;
    std::filesystem::path exe = std::filesystem::read_symlink("/proc/self/exe", ec);
    return ec ? std::filesystem::path() : exe.parent_path();
}

// The root folder would make the clean-up of temporary files sweep a whole device.
bool IsRootFolder(const std::filesystem::path& folder) {
    std::error_code ec;
    std::filesystem::path canonical = std::filesystem::weakly_canonical(folder, ec);
    return !ec && canonical == canonical.root_path();
}

std::filesystem::path PrepareApplicationFolder(Screen& screen) {
    std::filesystem::path folder =
        ResolveApplicationFolder(CurrentFolderEnvironment(ExecutableFolder()));
    if (IsRootFolder(folder)) {
        screen.message(kRootRefusalCaption, kRootRefusalText, MsgButtons::OkOnly,
                       MsgIcon::Critical);
        throw ToolFailure("the application folder is the root folder " + folder.string());
    }
    if (!EnsureFolder(folder)) {
        throw ToolFailure("cannot create the application folder " + folder.string());
    }
    return folder;
}

}  // namespace

ToolSession::ToolSession(Screen& screen)
    : appFolder_(PrepareApplicationFolder(screen)),
      workFolder_(),
      common_(appFolder_, workFolder_.path(), screen) {}

}  // namespace zvx::cat
