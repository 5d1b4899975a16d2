#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <iostream>
#include <optional>
#include <string>

#include "command_list.h"
#include "common/common.h"
#include "common/field_text.h"
#include "entry_selection.h"
#include "folder_command_support.h"
#include "launch/executer_run.h"
#include "store/load_settings.h"

namespace zvx::cat {

namespace {

// The selected entries, as the rows of a list that are all selected.
class SelectedList : public ExecuterList {
  public:
    explicit SelectedList(const EntryRows& rows) : rows_(rows) {}
    long rowCount() const override { return static_cast<long>(rows_.size()); }
    bool isSelected(long) const override { return true; }
    std::string tag(long row) const override {
        return std::string(rows_.line(static_cast<size_t>(row - 1)));
    }

  private:
    const EntryRows& rows_;
};

// Starts the desktop's default handler on the file and does not wait for it, so that a
// program that stays open does not hold up the next file. Whether it works is not looked
// at, as the window program does not look either.
void OpenWithDefaultProgram(const std::filesystem::path& file) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, 1, 2);
    std::string program = "xdg-open", argument = file.string();
    char* argv[] = {program.data(), argument.data(), nullptr};
    pid_t pid = 0;
    posix_spawnp(&pid, program.c_str(), &actions, nullptr, argv, environ);
    posix_spawn_file_actions_destroy(&actions);
}

// Executa on the command line: the file opened, or with --print its path printed.
class ToolOpener : public FileOpener {
  public:
    ToolOpener(bool print, std::ostream& out) : print_(print), out_(out) {}
    void open(const std::filesystem::path& file) override {
        if (print_)
            out_ << file.string() << "\n";
        else
            OpenWithDefaultProgram(file);
    }

  private:
    bool print_;
    std::ostream& out_;
};

std::optional<MissingChoice> ChoiceFor(std::string_view word) {
    if (word == "skip")
        return MissingChoice::SkipFile;
    if (word == "skip-all")
        return MissingChoice::SkipAll;
    if (word == "abort")
        return MissingChoice::AbortAll;
    return std::nullopt;
}

// The missing-medium dialog on the error stream: its texts, then the answer of
// --on-missing, else the person's on a terminal, else "skip".
class ToolMissingFileDialog : public MissingFileDialog {
  public:
    ToolMissingFileDialog(std::optional<MissingChoice> configured, bool interactive)
        : configured_(configured), interactive_(interactive) {}

    MissingChoice showing(const MissingFile& file, const AttemptDevice& attempt) override {
        std::cerr << kMissingFileTitle << "\n"
                  << kMissingFileHeading << "\n  " << file.path << "\n"
                  << kInsertMediumText << "\n"
                  << DeviceIdText(file.deviceId) << "\n"
                  << DeviceDescriptionText(file.deviceDescription) << "\n";
        if (configured_)
            return *configured_;
        while (std::optional<std::string> line = ask()) {
            const std::string_view answer = Trim(*line);
            if (answer.starts_with("attempt ")) {
                if (attempt(std::string(Trim(answer.substr(8)))))
                    return MissingChoice::Attempt;
            } else if (std::optional<MissingChoice> choice = ChoiceFor(answer)) {
                return *choice;
            }
        }
        std::cerr << "zvxcat: no answer given, taking \"skip\"\n";
        return MissingChoice::SkipFile;
    }

  private:
    std::optional<std::string> ask() const {
        std::string line;
        if (!interactive_)
            return std::nullopt;
        std::cerr << "attempt DEVICE, skip, skip-all or abort? " << std::flush;
        if (!std::getline(std::cin, line))
            return std::nullopt;
        return line;
    }

    std::optional<MissingChoice> configured_;
    bool interactive_;
};

std::optional<MissingChoice> MissingAnswer(const Arguments& arguments) {
    const std::string* word = arguments.value("--on-missing");
    if (!word || *word == "ask")
        return std::nullopt;
    if (std::optional<MissingChoice> choice = ChoiceFor(*word))
        return choice;
    throw UsageError("--on-missing takes ask, skip, skip-all or abort, not '" + *word + "'");
}

void CheckOpen(const Arguments& arguments) {
    RequirePositionalCount(arguments, 2, 2);
    MissingAnswer(arguments);
}

void RunOpen(const Arguments& arguments, Common& common, std::ostream& out) {
    LoadSettings(common);
    FolderCatalogue catalogue(common, arguments.positional[0]);
    const EntryRows rows = SelectEntries(common, catalogue.file(), catalogue.tree(), arguments);
    // A device given as catalogue text ("F:\") stays as it is; any other is a native path.
    if (const std::string* device = arguments.value("--device"))
        common.redirectDevice = device->find('\\') == std::string::npos
                                    ? NativePathArgument(*device).string()
                                    : *device;
    SelectedList list(rows);
    ToolOpener opener(arguments.has("--print"), out);
    ToolMissingFileDialog dialog(MissingAnswer(arguments), isatty(STDIN_FILENO));
    ExecuterRun run(common, list, opener, dialog, CurrentDriveRoots());
    if (!run.yo()) {
        std::cerr << "zvxcat: no entry selected\n";
        return;
    }
    while (run.fileme()) {
    }
}

}  // namespace

const Command& OpenCommand() {
    static const Command command{
        "open",
        "open the files of entries",
        "Usage: zvxcat open FILE FOLDERPATH [--sub] [--name NAME]... [--device PATH]\n"
        "                   [--print] [--on-missing WORD]\n"
        "Opens the files of the entries of the folder FOLDERPATH of the catalogue FILE\n"
        "with the desktop's default program, as Execute of the entry list does. A file\n"
        "that is not where the entry says is tried on the remembered device; otherwise\n"
        "the missing-medium question tells the medium's ID and description and asks:\n"
        "\"attempt DEVICE\" tries the file on DEVICE (and asks whether to remember it),\n"
        "\"skip\" passes over the file, \"skip-all\" over every later missing file,\n"
        "\"abort\" ends the run. FOLDERPATH has \\ or / between the names, compared\n"
        "without regard to case.\n"
        "  --sub             select the entries of all folders below FOLDERPATH too\n"
        "  --name NAME       select only the entries named exactly NAME; may be given\n"
        "                    more than once\n"
        "  --device PATH     the remembered device: a mount path or folder where the\n"
        "                    media's files are looked for first (\"F:\\\" kept as it is)\n"
        "  --print           print the path of each file instead of opening it\n"
        "  --on-missing WORD ask (default on a terminal), skip (default otherwise),\n"
        "                    skip-all, abort\n",
        {kSubFlag, kNameOption, "--device=", "--print", "--on-missing="},
        CheckOpen,
        RunOpen};
    return command;
}

}  // namespace zvx::cat
