#include "extensions/filter_declarations.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace zvx {

namespace {

// The path as one word of a command line: quoted when it holds anything the word
// splitting would act on.
std::string CommandWord(const std::string& path) {
    const bool plain = std::all_of(path.begin(), path.end(), [](unsigned char c) {
        return std::isalnum(c) || std::string_view("/._-+").find(c) != std::string_view::npos;
    });
    if (plain && !path.empty())
        return path;
    std::string quoted = "'";
    for (char c : path)
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

FilterDeclarationFile Declaration(std::string fileName, std::string_view name,
                                  const std::string& exe, std::string_view description,
                                  std::string_view suffix) {
    std::string text = "<name>" + std::string(name) + "\n";
    text += "<requires>110\n";
    text += "<exe>" + exe + "\n";
    text += "<modal>yes\n";
    text += "<description>" + std::string(description) + "\n";
    text += "<copyright>Comes with ZVX\n";
    text += "<version>1.00\n";
    text += "<suffix>\n" + std::string(suffix) + "\n</suffix>\n";
    return {std::move(fileName), std::move(text)};
}

}  // namespace

std::vector<FilterDeclarationFile> BuiltInFilterDeclarations(
    const std::filesystem::path& filterProgram) {
    const std::string program = CommandWord(filterProgram.string());
    return {
        Declaration("csv-export.zve", "CSV (Spreadsheet)", program + " csv-export",
                    "Saves the entries as a spreadsheet table, one row an entry.", "*.csv"),
        Declaration("html-export.zve", "HTML (Printable List)", program + " html-export",
                    "Saves the entries as a printable web page, a sortable table a folder.",
                    "*.html"),
        Declaration("csv-import.zvi", "CSV (Spreadsheet)", program + " csv-import",
                    "Reads a spreadsheet table of entries, with their folders, as saved by "
                    "the CSV export.",
                    "*.csv"),
    };
}

}  // namespace zvx
