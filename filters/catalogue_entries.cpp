#include "catalogue_entries.h"

#include <unordered_map>

#include "common/code_page.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "store/catalogue_format.h"
#include "store/entry_line.h"
#include "store/entry_offset.h"
#include "store/toc.h"

namespace zvx::filters {

namespace {

// Folder paths by ID; of two groups with one ID the first counts, as in the folder tree.
std::unordered_map<std::string, std::string> FolderPaths(const std::filesystem::path& catalogue) {
    std::unordered_map<std::string, std::string> paths;
    for (const TocGroup& group : ReadTocGroups(catalogue))
        paths.emplace(group.id, TextAsUtf8(group.path));
    return paths;
}

// The 0-based start of the entries: the entry offset, or the TOC's end when the offset
// points outside the file's entry section.
uint64_t EntryStart(const std::filesystem::path& catalogue) {
    const uint64_t offset = ReadEntryOffset(catalogue);
    if (offset > kTocStart && offset <= FileLength(catalogue) + 1)
        return offset - 1;
    return FindTocEnd(catalogue) - 1;
}

}  // namespace

void ForEachExportedEntry(const std::filesystem::path& catalogue,
                          const std::function<void(const ExportedEntry&)>& visit) {
    const auto paths = FolderPaths(catalogue);
    LineReader reader(catalogue, EntryStart(catalogue));
    ExportedEntry entry;
    for (std::string_view line; reader.next(line);) {
        if (line.size() < kMinEntryLineLength)
            continue;
        const EntryFields fields = SplitEntryLine(line);
        const auto folder = paths.find(std::string(fields[0]));
        entry.folder = folder == paths.end() ? std::string() : folder->second;
        for (size_t i = 0; i < entry.fields.size(); ++i)
            entry.fields[i] = TextAsUtf8(fields[i + 1]);
        visit(entry);
    }
}

}  // namespace zvx::filters
