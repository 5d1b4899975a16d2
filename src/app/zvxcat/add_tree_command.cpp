#include <charconv>

#include "adding/cdwizard_rules.h"
#include "adding/tree_adding.h"
#include "command_list.h"
#include "common/common.h"
#include "console_screen.h"
#include "document/folder_icon_table.h"
#include "folder_command_support.h"
#include "store/load_settings.h"

namespace zvx::cat {

namespace {

// The icon number of --top-icon or --sub-icon, or the wizard's default item (counted
// from 1) when not given.
int IconArgument(const Arguments& arguments, std::string_view option, int defaultItem) {
    const std::string* text = arguments.value(option);
    if (!text)
        return FolderIconTable()[static_cast<size_t>(defaultItem - 1)].number;
    int number = -1;
    auto [end, error] = std::from_chars(text->data(), text->data() + text->size(), number);
    if (error != std::errc() || end != text->data() + text->size() || FolderIconRow(number) < 0)
        throw UsageError(std::string(option) + " takes an icon number of the folder table");
    return number;
}

void CheckAddTree(const Arguments& arguments) {
    RequirePositionalCount(arguments, 2, 2);
    AnswersFromArguments(arguments);
    if (arguments.value("--under") && arguments.has("--as-root"))
        throw UsageError("--under and --as-root exclude each other");
    if (arguments.value("--description") && arguments.has("--dir-description"))
        throw UsageError("--description and --dir-description exclude each other");
    IconArgument(arguments, "--top-icon", 5);
    IconArgument(arguments, "--sub-icon", 1);
    std::string parent = arguments.value("--parent") ? *arguments.value("--parent") : "x";
    if (!ParentalNameProblem(parent).empty())
        throw UsageError("--parent: " + ParentalNameProblem(parent));
    std::string pattern;
    if (const std::string* text = arguments.value("--pattern");
        text && !ApplyPattern(true, *text, pattern))
        throw UsageError("--pattern: Invalid file-pattern!");
}

TreeAddingChoices ChoicesFrom(const Arguments& arguments, const FolderTree& tree,
                              const std::filesystem::path& file) {
    TreeAddingChoices choices;
    choices.root = NativePathArgument(arguments.positional[1]);
    if (const std::string* under = arguments.value("--under")) {
        choices.addAsSubData = true;
        choices.selectedFolderPath =
            tree.nodes[static_cast<size_t>(RequireFolder(tree, *under, file))].fullPath;
    }
    if (const std::string* parent = arguments.value("--parent")) {
        choices.makeParental = true;
        choices.parentalName = *parent;
        ParentalNameProblem(choices.parentalName);
    }
    choices.realFolders = arguments.has("--real-folders");
    choices.detag = arguments.has("--detag");
    if (const std::string* pattern = arguments.value("--pattern"))
        ApplyPattern(true, *pattern, choices.pattern);
    if (const std::string* description = arguments.value("--description")) {
        choices.ownDescription = true;
        choices.description = *description;
    }
    choices.topIcon = IconArgument(arguments, "--top-icon", 5);
    choices.subIcon = IconArgument(arguments, "--sub-icon", 1);
    return choices;
}

void RunAddTree(const Arguments& arguments, Common& common, std::ostream&) {
    LoadSettings(common);
    FolderCatalogue catalogue(common, arguments.positional[0]);
    const TreeAddingChoices choices = ChoicesFrom(arguments, catalogue.tree(), catalogue.file());
    if (!std::filesystem::is_directory(choices.root))
        throw ToolFailure("no directory " + choices.root.string());
    const std::filesystem::path& cfn = catalogue.openWorkingCopy();
    const TreeAddingResult result = AddTree(common, cfn, choices);
    KillTempFiles(common);
    const std::string file = catalogue.file().string();
    // Without the new folders the entries made in them would be in FILE but in no folder.
    if (!result.foldersMerged)
        throw ToolFailure("the run could not complete; " + file + " is unchanged");
    catalogue.save();
    if (!result.entriesWritten)
        throw ToolFailure("not every entry could be written; " + file +
                          " holds those written before the failure");
}

}  // namespace

const Command& AddTreeCommand() {
    static const Command command{
        "add-tree",
        "add a directory tree, as the wizard does",
        "Usage: zvxcat add-tree FILE ROOT [--under FOLDERPATH | --as-root]\n"
        "                       [--parent NAME] [--real-folders] [--detag] [--pattern P]\n"
        "                       [--description TEXT | --dir-description]\n"
        "                       [--top-icon N] [--sub-icon N]\n"
        "                       [--on-duplicate WORD] [--on-error WORD]\n"
        "Walks the directory ROOT into the catalogue FILE as the tree-adding wizard does.\n"
        "Regular files only; links to directories are not followed and the walk stays on\n"
        "the file system of ROOT. Folders already in the catalogue are reused, and their\n"
        "files go through the duplicate check.\n"
        "  --under FOLDERPATH   add below this folder (\"Add as sub-data ...\")\n"
        "  --as-root            add at the root (the default)\n"
        "  --parent NAME        first make the folder NAME (\"Create a new-parental-folder\")\n"
        "  --real-folders       a folder for each directory; without it, and without\n"
        "                       --parent or --under, nothing is added\n"
        "  --detag              read tags and scan names (\"Auto-detag audio-files\")\n"
        "  --pattern P          only files matching P, such as \"*.mp3;*.wav\"\n"
        "  --description TEXT   the new folders' description\n"
        "  --dir-description    the directory's path as description (the default)\n"
        "  --top-icon N         icon number of the --parent folder (default 4)\n"
        "  --sub-icon N         icon number of the other folders (default 10)\n"
        "  --on-duplicate WORD  ask (default), keep-old, keep-all, overwrite, overwrite-all\n"
        "  --on-error WORD      ask (default), ignore or abort (abort skips the rest of the\n"
        "                       directory, as in the window). When the entries cannot all\n"
        "                       be written (a full disk), FILE keeps those written, or\n"
        "                       stays unchanged when the new folders cannot be; the exit\n"
        "                       status is 1 then\n",
        {"--under=", "--as-root", "--parent=", "--real-folders", "--detag",
         "--pattern=", "--description=", "--dir-description",
         "--top-icon=", "--sub-icon=", "--on-duplicate=", "--on-error="},
        CheckAddTree,
        RunAddTree};
    return command;
}

}  // namespace zvx::cat
