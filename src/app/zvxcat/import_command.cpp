#include <iostream>

#include "command_list.h"
#include "common/common.h"
#include "exchange/exchange_runs.h"
#include "exchange/export_target.h"
#include "exchange/filter_program.h"
#include "exchange/merge.h"
#include "folder_command_support.h"
#include "platform/file_io.h"

namespace zvx::cat {

namespace {

void CheckImport(const Arguments& arguments) {
    RequirePositionalCount(arguments, 2, 2);
    if ((arguments.value("--under") != nullptr) == arguments.has("--as-root"))
        throw UsageError("give either --under FOLDERPATH or --as-root");
}

// The TOC path the source goes under: the chosen folder's FullPath and "\", or the root.
std::string TargetPathArgument(const Arguments& arguments, const FolderCatalogue& catalogue) {
    const std::string* under = arguments.value("--under");
    if (under == nullptr)
        return "";
    FolderTree tree = catalogue.tree();
    return tree.nodes[RequireFolder(tree, *under, catalogue.file())].fullPath + "\\";
}

// The built-in importer: the source, which must be a catalogue, copied to imported.tmp.
std::filesystem::path BuiltInSource(Common& common, const std::filesystem::path& source,
                                    const std::filesystem::path& file) {
    if (!IsCatalogueName(common.screen(), source.string()))
        RefuseChange(file);
    const std::filesystem::path imported = common.workFile(kImportedFileName);
    CopyFileBytes(source, imported);
    return imported;
}

// An external filter: what it makes of the source, left as imported.tmp in its home.
std::filesystem::path FilterSource(Common& common, const std::string& filterFile,
                                   const std::filesystem::path& source,
                                   const std::filesystem::path& file) {
    const std::filesystem::path home = common.workFile("filter");
    const std::filesystem::path imported = FilterPluginsFolder(home) / kImportedFileName;
    const int status = RunFilterProgram(common, filterFile, "import", home, source);
    std::error_code ec;
    if (std::filesystem::exists(imported, ec))
        return imported;
    common.screen().message("", "External Import-Filter Canceled!", MsgButtons::OkOnly,
                            MsgIcon::Information);
    std::cerr << "zvxcat: the filter ended with status " << status << "\n";
    RefuseChange(file);
}

// The file the merge consumes: the source itself, or what the filter of --filter made.
std::filesystem::path ImportSource(const Arguments& arguments, Common& common,
                                   const std::filesystem::path& file) {
    const std::filesystem::path source = NativePathArgument(arguments.positional[1]);
    const std::string* name = arguments.value("--filter");
    if (name == nullptr)
        return BuiltInSource(common, source, file);
    const std::optional<std::string> filterFile =
        FilterFileNamed(common, FilterKind::Import, *name);
    if (!filterFile)
        throw ToolFailure("no import filter is named \"" + *name + "\"");
    if (*filterFile == kBuiltInFilterFile)
        return BuiltInSource(common, source, file);
    return FilterSource(common, *filterFile, source, file);
}

// The merge runs on the working copy, which replaces FILE only when it succeeded.
void RunImport(const Arguments& arguments, Common& common, std::ostream&) {
    FolderCatalogue catalogue(common, arguments.positional[0]);
    const std::string targetPath = TargetPathArgument(arguments, catalogue);
    const std::filesystem::path imported = ImportSource(arguments, common, catalogue.file());
    common.screen().status("IMPORT IN PROGRESS...");
    MergeResult result = MergeCatalogue(common, catalogue.openWorkingCopy(), imported, targetPath);
    common.screen().status("");
    if (!result.merged)
        RefuseChange(catalogue.file());
    catalogue.save();
    std::cerr << "zvxcat: " << result.folders << " folders and " << result.entries
              << " entries merged\n";
}

}  // namespace

const Command& ImportCommand() {
    static const Command command{
        "import",
        "merge another catalogue into a catalogue",
        "Usage: zvxcat import FILE SOURCE (--under FOLDERPATH | --as-root) [--filter NAME]\n"
        "Merges the catalogue SOURCE (a .zvx file, left as it is) into the catalogue FILE,\n"
        "below the folder FOLDERPATH or at the root. The imported folders get new IDs,\n"
        "counting on above the highest of FILE. A top folder of SOURCE whose name is\n"
        "taken at that place (compared exactly) gets \" (2)\" appended until it is free,\n"
        "and imported descriptions begin with the path of FOLDERPATH. Entries of a folder\n"
        "SOURCE does not have join the folder of the entry before them. Prints the\n"
        "numbers of folders and entries merged on stderr.\n"
        "  --under FOLDERPATH  the folder to import below; it must exist. FOLDERPATH has\n"
        "                      \\ or / between the names, compared without regard to case\n"
        "  --as-root           import at the root\n"
        "  --filter NAME       the import filter of this name (as `zvxcat extensions\n"
        "                      --kind import` lists it) makes the catalogue of SOURCE\n",
        {"--under=", "--as-root", "--filter="},
        CheckImport,
        RunImport};
    return command;
}

}  // namespace zvx::cat
