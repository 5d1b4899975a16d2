#include "metadata/file_content_summary.h"

#include <exception>

#include "platform/line_reader.h"
#include "shell/text_case.h"

namespace zvx {

namespace {

constexpr int kSummaryLines = 5;

std::string FirstTextLines(const std::filesystem::path& path) {
    LineReader reader(path);
    std::string text;
    std::string_view line;
    for (int read = 0; read < kSummaryLines && reader.next(line); ++read) {
        if (text.empty())
            text = line;
        else
            text.append("\r").append(line);
    }
    return text;
}

// Each category with a summary of its own has its branch here; an mp3 file's summary
// from its ID3 tag joins them with the tag reader (issue 5).
std::string SummaryByCategory(const std::filesystem::path& path, std::string_view category) {
    if (category == "txt")
        return FirstTextLines(path);
    return {};
}

}  // namespace

std::string FileContentSummary(const std::filesystem::path& path,
                               std::string_view contentCategory) {
    const std::string category = LowerCase(contentCategory);
    try {
        return SummaryByCategory(path, category);
    } catch (const std::exception&) {
        return "Error while retrieving ZVX-Content information for: " + path.string() + " (" +
               category + ")";
    }
}

}  // namespace zvx
