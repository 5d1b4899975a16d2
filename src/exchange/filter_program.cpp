#include "exchange/filter_program.h"

#include "common/app_files.h"
#include "common/common.h"
#include "extensions/addon_call.h"
#include "extensions/extension_command.h"
#include "extensions/extension_files.h"
#include "extensions/hand_over.h"
#include "platform/program_start.h"

namespace zvx {

std::optional<std::string> FilterFileNamed(const Common& common, FilterKind kind,
                                           const std::string& name) {
    for (const FilterRow& row : ScanFilters(common, kind)) {
        if (row.name == name)
            return row.fileName;
    }
    return std::nullopt;
}

std::filesystem::path FilterPluginsFolder(const std::filesystem::path& home) {
    const std::filesystem::path plugins = FindInFolder(home, kPluginsFolder);
    std::filesystem::create_directories(plugins);
    return plugins;
}

int RunFilterProgram(const Common& common, const std::string& filterFile,
                     const std::string& eventName, const std::filesystem::path& home,
                     const std::filesystem::path& target) {
    const Common filterHome(home, home, common.screen());
    WriteHandOverFiles(filterHome, eventName, {});
    FilterPluginsFolder(home);
    const AddOnCall call = SplitAddOnCall(FilterCallString(common, filterFile));
    ProgramStarts programs;
    const int pid =
        programs.start(ExtensionArguments(call.command, PluginsFolder(common)), home,
                       {{"ZVX_HOME", home.string()}, {"ZVX_FILTER_TARGET", target.string()}});
    return programs.waitForExit(pid);
}

}  // namespace zvx
