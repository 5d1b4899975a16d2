#include <unistd.h>

#include <array>
#include <iostream>
#include <optional>
#include <string>

#include "command_list.h"
#include "common/common.h"
#include "common/text_case.h"
#include "entry_edit_arguments.h"
#include "finding/result_row.h"
#include "finding/search_preparation.h"
#include "finding/search_run.h"
#include "finding/searcher_rules.h"
#include "folder_command_support.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "store/load_settings.h"

namespace zvx::cat {

namespace {

// The words of --cmp, in the order of the comparisons' texts: the number is the place
// plus one.
constexpr std::array<std::string_view, 8> kComparisonWords = {
    "contains", "not-contains", "is", "is-not", "gt", "ge", "lt", "le"};

int FieldOption(const Arguments& arguments) {
    const std::string* text = arguments.value("--field");
    if (!text || TextEquals(*text, "any"))
        return 0;
    const int field = FieldNumber(*text);
    if (field == 0)
        throw UsageError("--field takes any, a field number 1 to 22 or a field word, not '" +
                         *text + "'");
    return field;
}

int ComparisonOption(const Arguments& arguments) {
    const std::string* text = arguments.value("--cmp");
    if (!text)
        return 1;
    for (size_t i = 0; i < kComparisonWords.size(); ++i) {
        if (*text == kComparisonWords[i] || TextEquals(*text, kComparisonTexts[i]))
            return static_cast<int>(i) + 1;
    }
    throw UsageError("--cmp takes contains, not-contains, is, is-not, gt, ge, lt or le, not '" +
                     *text + "'");
}

WordMode WordsOption(const Arguments& arguments) {
    const std::string* text = arguments.value("--words");
    if (!text || *text == "exact")
        return WordMode::ExactPhrase;
    if (*text == "any")
        return WordMode::AnyWords;
    if (*text == "all")
        return WordMode::AllWords;
    throw UsageError("--words takes exact, any or all, not '" + *text + "'");
}

// The answer --over-2000 gives to the question beyond 2000 matches, if any.
std::optional<MsgAnswer> Over2000Option(const Arguments& arguments) {
    const std::string* text = arguments.value("--over-2000");
    if (!text)
        return std::nullopt;
    if (*text == "stop")
        return MsgAnswer::Yes;
    if (*text == "go-on")
        return MsgAnswer::No;
    throw UsageError("--over-2000 takes stop or go-on, not '" + *text + "'");
}

SearchSettings SettingsOf(const Arguments& arguments) {
    return {FieldOption(arguments), ComparisonOption(arguments), WordsOption(arguments),
            arguments.has("--case"), arguments.positional[1]};
}

void CheckSearch(const Arguments& arguments) {
    RequirePositionalCount(arguments, 2, 2);
    SettingsOf(arguments);
    Over2000Option(arguments);
    if (arguments.has("--sub") && !arguments.value("--in"))
        throw UsageError("--sub needs --in");
}

// The console's screen, with the question beyond 2000 matches answered by --over-2000,
// or on a terminal by the person; otherwise the search goes on, told once.
class SearchScreen : public Screen {
  public:
    SearchScreen(Screen& console, std::optional<MsgAnswer> over2000, bool interactive)
        : console_(console), over2000_(over2000), interactive_(interactive) {}

    MsgAnswer message(const std::string& caption, const std::string& text, MsgButtons buttons,
                      MsgIcon icon) override {
        if (text != kResultQuestion || (!over2000_ && interactive_))
            return console_.message(caption, text, buttons, icon);
        if (over2000_)
            return *over2000_;
        if (!told_)
            std::cerr << "zvxcat: the result holds over 2000 entries; the search goes on "
                         "(--over-2000 stop ends it there)\n";
        told_ = true;
        return MsgAnswer::No;
    }
    std::string input(const std::string& caption, const std::string& prompt,
                      const std::string& defaultText) override {
        return console_.input(caption, prompt, defaultText);
    }
    std::string doubledetect(const DuplicateQuestion& question) override {
        return console_.doubledetect(question);
    }
    FileDialogResult fileDialog(const FileDialogRequest& request) override {
        return console_.fileDialog(request);
    }
    void status(const std::string& text) override { console_.status(text); }
    void progress(long long value, long long maximum) override {
        console_.progress(value, maximum);
    }

  private:
    Screen& console_;
    std::optional<MsgAnswer> over2000_;
    bool interactive_;
    bool told_ = false;
};

// The source of the search: the whole catalogue, or with --in the folder, with --sub
// its sub-tree, from the split search files.
SearchSourceOption PrepareSource(Common& common, const Arguments& arguments,
                                 FolderCatalogue& catalogue) {
    const std::string* in = arguments.value("--in");
    if (!in) {
        SearchInit(common, catalogue.file(), false, std::nullopt);
        return SearchSourceOption::Entire;
    }
    const FolderTree tree = catalogue.tree();
    const FolderNode& node = tree.nodes[RequireFolder(tree, *in, catalogue.file())];
    SearchInit(common, catalogue.file(), true, SearchFolder{node.fullPath, node.id()});
    return arguments.has("--sub") ? SearchSourceOption::SubTree : SearchSourceOption::Folder;
}

// Whether an earlier result holds any line behind its TOC, as its list would show.
bool HasRows(const std::filesystem::path& result) {
    LineReader reader(result, EntrySectionStart(result));
    std::string_view line;
    return reader.next(line);
}

void RunSearch(const Arguments& arguments, Common& session, std::ostream& out) {
    const SearchSettings settings = SettingsOf(arguments);
    SearchScreen screen(session.screen(), Over2000Option(arguments), isatty(STDIN_FILENO));
    Common common(session.applicationFolder(), session.workFolder(), screen);
    LoadSettings(common);
    FolderCatalogue catalogue(common, arguments.positional[0]);
    const SearchSourceOption option = PrepareSource(common, arguments, catalogue);
    const FolderResolver resolver(SearchSourceFile(common, option));
    const bool raw = arguments.has("--raw");
    std::string text;
    const ShowEntry show = [&](std::string_view tail, std::string_view folderId) {
        if (raw) {
            text += ResultRowTag(folderId, tail);
        } else {
            std::array<std::string, kResultColumnCount> row = ResultRowTexts(tail, common.settings);
            row[1] = resolver.resolva(folderId);
            for (size_t column = 0; column < row.size(); ++column)
                text.append(column > 0 ? "\t" : "").append(row[column]);
        }
        text += '\n';
        if (text.size() > (1 << 20)) {
            out << text;
            text.clear();
        }
    };
    size_t count = 0;
    if (const std::string* earlier = arguments.value("--remove-from")) {
        const std::filesystem::path result = common.workFile(kSearchResultFile);
        CopyFileBytes(NativePathArgument(*earlier), result);
        // An empty result list has nothing to remove from: it stays as it is.
        if (HasRows(result))
            count = RemoveFromResult(common, option, settings, show);
    } else {
        count = NewSearch(common, option, settings, show);
    }
    out << text;
    common.setProgress(0);
    screen.status("");
    if (const std::string* result = arguments.value("--out"))
        CopyFileSafely(common.workFile(kSearchResultFile), NativePathArgument(*result));
    std::cerr << FoundText(count) << "\n";
}

}  // namespace

const Command& SearchCommand() {
    static const Command command{
        "search",
        "find entries by a field test, as the search window does",
        "Usage: zvxcat search FILE TEXT [--field F] [--cmp C] [--words exact|any|all]\n"
        "                     [--case] [--in FOLDERPATH [--sub]] [--out RESULT]\n"
        "                     [--remove-from RESULT] [--raw] [--over-2000 stop|go-on]\n"
        "Finds the entries of the catalogue FILE whose field F passes the comparison C\n"
        "with TEXT, as the search window's \"New Search-Result\" does, and prints them in\n"
        "file order: one line an entry, the result list's 23 columns (Filename,\n"
        "ZVX-Folder, Size, Path, ... Mode) separated by tabs. The count (\"Found: 3\n"
        "Entries\") goes to stderr.\n"
        "  --field F      any (the default, \"<ANYTHING>\": the fields Filename to Length),\n"
        "                 a field number 1 to 22 or a field word as in 'zvxcat set'\n"
        "  --cmp C        contains (the default), not-contains, is, is-not, gt, ge, lt, le,\n"
        "                 or the comparison's own text (\"Is More/Equals Than\")\n"
        "  --words M      exact (the default: TEXT is one phrase), any or all (TEXT is\n"
        "                 words; double quotes keep spaces in a word)\n"
        "  --case         compare with regard to case\n"
        "  --in FOLDERPATH  search only the entries of that folder\n"
        "  --sub          with --in: of the folder and all folders below it\n"
        "  --out RESULT   write the result catalogue to RESULT, a .zvx like any other\n"
        "  --remove-from RESULT  remove from the earlier result RESULT the entries the\n"
        "                 search finds; what is left is the result\n"
        "  --raw          print the stored entry lines instead of the column texts\n"
        "  --over-2000 A  the answer to \"Would you like to stop the search?\", asked at\n"
        "                 every match beyond 2000: stop or go-on. Without it the question\n"
        "                 is asked on a terminal, and otherwise the search goes on.\n"
        "A TEXT of more than 25 words ends the run with exit status 3.\n",
        {"--field=", "--cmp=", "--words=", "--case", "--in=", "--sub",
         "--out=", "--remove-from=", "--raw", "--over-2000="},
        CheckSearch,
        RunSearch};
    return command;
}

}  // namespace zvx::cat
