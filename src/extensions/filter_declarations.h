#pragma once
// The declarations of the filters that come with the program: one program, zvxfilter,
// serves as the CSV export, the HTML export and the CSV import, chosen by its first
// argument. Its place is known only at run time, so the window program writes these
// declarations into PLUGINS at start-up.

#include <filesystem>
#include <string>
#include <vector>

namespace zvx {

// The file name of the filter program, beside the window program.
inline constexpr const char* kFilterProgramName = "zvxfilter";

struct FilterDeclarationFile {
    std::string fileName;  // "csv-export.zve"
    std::string text;
};

// The three declarations for the filter program at `filterProgram` (absolute).
std::vector<FilterDeclarationFile> BuiltInFilterDeclarations(
    const std::filesystem::path& filterProgram);

}  // namespace zvx
