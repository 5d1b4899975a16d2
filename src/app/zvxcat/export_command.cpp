#include <optional>
#include <string>

#include "command_list.h"
#include "common/common.h"
#include "exchange/export_prep.h"
#include "exchange/export_target.h"
#include "exchange/export_toc.h"
#include "exchange/filter_program.h"
#include "folder_command_support.h"
#include "store/load_settings.h"
#include "store/write_protection.h"

namespace zvx::cat {

namespace {

ExportTocMode TocOption(const Arguments& arguments) {
    const std::string* word = arguments.value("--toc");
    if (!word)
        return ExportTocMode::All;
    if (const std::optional<ExportTocMode> mode = ExportTocModeOf(*word))
        return *mode;
    throw UsageError("--toc takes all, optimize or new, not '" + *word + "'");
}

void CheckExport(const Arguments& arguments) {
    RequirePositionalCount(arguments, 2, 2);
    TocOption(arguments);
    if (arguments.has("--sub") && !arguments.value("--in"))
        throw UsageError("--sub needs --in");
}

// The export file as the menu command of the source makes it: the whole catalogue, the
// folder of --in, or with --sub its sub-tree.
void PrepareSource(Common& common, const Arguments& arguments, FolderCatalogue& catalogue,
                   const std::filesystem::path& exportFile) {
    const std::string* in = arguments.value("--in");
    if (!in) {
        PrepareExportFile(common, catalogue.file(), ExportSource::Document, std::nullopt,
                          exportFile);
        return;
    }
    const FolderTree tree = catalogue.tree();
    const FolderNode& node = tree.nodes[RequireFolder(tree, *in, catalogue.file())];
    PrepareExportFile(common, catalogue.file(),
                      arguments.has("--sub") ? ExportSource::SubTree : ExportSource::Folder,
                      SearchFolder{node.fullPath, node.id()}, exportFile);
}

// The export file of FILE, prepared and with the TOC mode applied.
void MakeExportFile(const Arguments& arguments, Common& common,
                    const std::filesystem::path& exportFile) {
    LoadSettings(common);
    FolderCatalogue catalogue(common, arguments.positional[0]);
    PrepareSource(common, arguments, catalogue, exportFile);
    ApplyExportToc(common, exportFile, TakeExportBackup(common, exportFile), TocOption(arguments),
                   TodayShortDate());
}

// The declaration file of --filter's export filter; none for the built-in exporter.
std::optional<std::string> ExternalFilter(const Arguments& arguments, const Common& common) {
    const std::string* name = arguments.value("--filter");
    if (name == nullptr)
        return std::nullopt;
    const std::optional<std::string> file = FilterFileNamed(common, FilterKind::Export, *name);
    if (!file)
        throw ToolFailure("no export filter is named \"" + *name + "\"");
    return *file == kBuiltInFilterFile ? std::nullopt : file;
}

// An external filter writes OUT as it likes, from export.tmp in a home of its own.
void RunFilterExport(const Arguments& arguments, Common& common, const std::string& filterFile) {
    const std::filesystem::path home = common.workFile("filter");
    MakeExportFile(arguments, common, FilterPluginsFolder(home) / kExportFileName);
    const std::filesystem::path out =
        std::filesystem::absolute(NativePathArgument(arguments.positional[1]));
    const int status = RunFilterProgram(common, filterFile, "export", home, out);
    if (status != 0)
        throw ToolFailure("the export filter ended with status " + std::to_string(status));
}

void RunExport(const Arguments& arguments, Common& common, std::ostream&) {
    if (const std::optional<std::string> filterFile = ExternalFilter(arguments, common)) {
        RunFilterExport(arguments, common, *filterFile);
        return;
    }
    const std::optional<std::string> target =
        ExportTargetName(common.screen(), NativePathArgument(arguments.positional[1]).string());
    if (!target)
        throw ToolFailure("refused; nothing was exported");
    const std::filesystem::path exportFile = common.workFile(kExportFileName);
    MakeExportFile(arguments, common, exportFile);
    // --force is the Yes to the question a write-protected target brings.
    if (arguments.has("--force") && IsReadOnly(*target))
        std::filesystem::permissions(*target, std::filesystem::perms::owner_write,
                                     std::filesystem::perm_options::add);
    if (!WriteExportTarget(common, exportFile, *target))
        throw ToolFailure(*target + " is write-protected and was left as it was");
}

}  // namespace

const Command& ExportCommand() {
    static const Command command{
        "export",
        "export a catalogue, a folder or a sub-tree as a new catalogue",
        "Usage: zvxcat export FILE OUT [--in FOLDERPATH [--sub]] [--toc all|optimize|new]\n"
        "                     [--force] [--filter NAME]\n"
        "Writes the entries of the catalogue FILE, or of one folder of it, to the new\n"
        "catalogue OUT, as the export window's built-in exporter does. OUT without an\n"
        "extension gets \".zvx\"; any other extension is refused.\n"
        "  --in FOLDERPATH  export only the entries of that folder\n"
        "  --sub          with --in: of the folder and all folders below it\n"
        "  --toc MODE     all (the default) keeps the whole folder tree; optimize keeps\n"
        "                 only the folders the entries use and their parents; new puts\n"
        "                 every entry into one folder \"Exported Entries\"\n"
        "  --force        overwrite a write-protected OUT, making it writable\n"
        "  --filter NAME  the export filter of this name (as `zvxcat extensions --kind\n"
        "                 export` lists it) writes OUT instead, in its own format\n",
        {"--in=", "--sub", "--toc=", "--force", "--filter="},
        CheckExport,
        RunExport};
    return command;
}

}  // namespace zvx::cat
