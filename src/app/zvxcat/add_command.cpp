#include "adding/insert_run.h"
#include "command_list.h"
#include "common/common.h"
#include "console_screen.h"
#include "folder_command_support.h"
#include "store/load_settings.h"

namespace zvx::cat {

namespace {

void CheckAdd(const Arguments& arguments) {
    RequirePositionalCount(arguments, 3, SIZE_MAX);
    AnswersFromArguments(arguments);
}

// The insert list's run: the files go into one folder, each through the duplicate
// check. What was added before an abort is kept, as in the window. When the run could
// not write all it made (a full disk), FILE takes what was written and the run fails.
void RunAdd(const Arguments& arguments, Common& common, std::ostream&) {
    LoadSettings(common);
    FolderCatalogue catalogue(common, arguments.positional[0]);
    FolderTree tree = catalogue.tree();
    const int folder = RequireFolder(tree, arguments.positional[1], catalogue.file());
    std::vector<InsertRow> rows;
    for (size_t i = 2; i < arguments.positional.size(); ++i)
        listmore(rows, NativeFileArgument(arguments.positional[i]).string());
    dataact(rows);
    const std::filesystem::path& cfn = catalogue.openWorkingCopy();
    const bool whole = InsertRun(common, cfn, tree.nodes[static_cast<size_t>(folder)].id(), rows,
                                 arguments.has("--detag"));
    catalogue.save();
    if (!whole)
        throw ToolFailure("not every entry could be written; " + catalogue.file().string() +
                          " holds those written before the failure");
}

}  // namespace

const Command& AddCommand() {
    static const Command command{
        "add",
        "add files to a folder",
        "Usage: zvxcat add FILE FOLDERPATH MEDIAFILE... [--detag]\n"
        "                  [--on-duplicate WORD] [--on-error WORD]\n"
        "Adds each MEDIAFILE as an entry of the folder FOLDERPATH of the catalogue FILE,\n"
        "as the insert list does: MP3 stream data always, with --detag also the ID3 tag\n"
        "and the scanned file name. FOLDERPATH has \\ or / between the names, compared\n"
        "without regard to case.\n"
        "  --detag              read tags and scan names (\"Auto-detag audio-files\")\n"
        "  --on-duplicate WORD  ask (default), keep-old, keep-all, overwrite, overwrite-all\n"
        "  --on-error WORD      ask (default), ignore or abort; a file that fails is\n"
        "                       skipped with ignore, and abort ends the run keeping what\n"
        "                       was added. When the entries cannot all be written (a\n"
        "                       full disk), FILE keeps those written, and the exit\n"
        "                       status is 1\n",
        {"--detag", "--on-duplicate=", "--on-error="},
        CheckAdd,
        RunAdd};
    return command;
}

}  // namespace zvx::cat
