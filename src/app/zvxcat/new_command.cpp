#include <system_error>

#include "command_list.h"
#include "common/common.h"
#include "platform/file_io.h"
#include "store/new_catalogue.h"

namespace zvx::cat {

namespace {

void CheckNew(const Arguments& arguments) {
    RequirePositionalCount(arguments, 1, 1);
}

// The catalogue is made in the work folder and then takes the target's name in one
// step, so that the target is never seen half written.
void RunNew(const Arguments& arguments, Common& common, std::ostream&) {
    std::filesystem::path target = NativePathArgument(arguments.positional[0]);
    std::error_code ec;
    if (!arguments.has("--force") &&
        std::filesystem::exists(std::filesystem::symlink_status(target, ec))) {
        throw ToolFailure(target.string() + " already exists (--force replaces it)");
    }
    std::filesystem::path fresh = common.workFile("new.zvx");
    CreateCatalogue(common, fresh);
    ReplaceFile(fresh, target);
}

}  // namespace

const Command& NewCommand() {
    static const Command command{
        "new",
        "create an empty catalogue",
        "Usage: zvxcat new FILE [--force]\n"
        "Creates FILE as an empty catalogue. An existing FILE is left alone unless\n"
        "--force is given.\n",
        {"--force"},
        CheckNew,
        RunNew};
    return command;
}

}  // namespace zvx::cat
