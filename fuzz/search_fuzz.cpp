// Any bytes go through a search: the first five pick the field, the comparison, the word
// mode, the case flag, the search source and the length of the search text that follows;
// the rest is the catalogue. The search files are prepared (split by the first folder of
// the TOC when the source is a folder or sub-tree), then a new search and a removal run
// over them. It may fail only with FileError or SearchOverflow. Each result's entry offset
// is the end of its TOC, and, when the search file's own offset was the end of its TOC
// (else lines of its TOC section stand behind the end), its rows are exactly the lines
// behind that TOC.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "common/common.h"
#include "finding/search_preparation.h"
#include "finding/search_run.h"
#include "fuzz_check.h"
#include "fuzz_folder.h"
#include "platform/file_error.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "silent_screen.h"
#include "store/entry_offset.h"
#include "store/toc.h"

namespace {

using zvx::fuzz::Require;
using Path = std::filesystem::path;

constexpr size_t kPicks = 5;

std::optional<zvx::SearchFolder> FirstFolder(const Path& catalogue) {
    const std::vector<zvx::TocGroup> groups = zvx::ReadTocGroups(catalogue);
    if (groups.empty())
        return std::nullopt;
    return zvx::SearchFolder{groups.front().path, groups.front().id.substr(0, 8)};
}

// The result's header, and the rows shown against the lines behind its TOC.
void CheckResult(const zvx::Common& common, const Path& source,
                 const std::vector<std::string>& rows, size_t count) {
    const Path result = common.workFile(zvx::kSearchResultFile);
    const uint64_t tocEnd = zvx::FindTocEnd(result);
    Require(zvx::ReadEntryOffset(result) == tocEnd, "the result's entry offset is its TOC's end");
    Require(rows.size() == count, "every line taken is shown once");
    if (zvx::ReadEntryOffset(source) != zvx::FindTocEnd(source))
        return;
    std::vector<std::string> lines;
    zvx::LineReader reader(result, tocEnd - 1);
    std::string_view line;
    while (reader.next(line))
        lines.emplace_back(line);
    Require(lines == rows, "the result holds the rows in their order");
}

void Exercise(zvx::Common& common, const Path& catalogue, const uint8_t* picks,
              std::string_view text) {
    const auto option = static_cast<zvx::SearchSourceOption>(picks[3] / 2 % 3);
    const bool split = option != zvx::SearchSourceOption::Entire;
    zvx::SearchInit(common, catalogue, split, split ? FirstFolder(catalogue) : std::nullopt);
    const zvx::SearchSettings settings{picks[0] % 23, 1 + picks[1] % 8,
                                       static_cast<zvx::WordMode>(picks[2] % 3),
                                       (picks[3] & 1) != 0, std::string(text)};
    std::vector<std::string> rows;
    const zvx::ShowEntry show = [&](std::string_view tail, std::string_view id) {
        rows.push_back(std::string(id) + std::string(tail));
    };
    const Path source = zvx::SearchSourceFile(common, option);
    size_t count = zvx::NewSearch(common, option, settings, show);
    CheckResult(common, source, rows, count);
    rows.clear();
    count = zvx::RemoveFromResult(common, option, settings, show);
    CheckResult(common, source, rows, count);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < kPicks)
        return 0;
    const size_t textLength = std::min<size_t>(data[4] % 40, size - kPicks);
    const std::string_view text(reinterpret_cast<const char*>(data) + kPicks, textLength);
    const std::string_view bytes(reinterpret_cast<const char*>(data) + kPicks + textLength,
                                 size - kPicks - textLength);
    const Path& folder = zvx::fuzz::FuzzFolder();
    zvx::fuzz::SilentScreen screen;
    zvx::Common common(folder, folder, screen);
    const Path catalogue = folder / "fuzz.zvx";
    try {
        zvx::WriteEmptyFile(catalogue);
        zvx::WriteFileBytes(catalogue, 0, bytes);
        Exercise(common, catalogue, data, text);
    } catch (const zvx::FileError&) {
        // A file the readers cannot make sense of may fail with FileError.
    } catch (const zvx::SearchOverflow&) {
        // More than 25 words, or a sub-tree of more than 64,001 folders: a fatal end.
    }
    return 0;
}
