#include "finding/search_files.h"

#include "common/common.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "store/catalogue_format.h"
#include "store/entry_offset.h"

namespace zvx {

std::filesystem::path SearchSourceFile(const Common& common, SearchSourceOption option) {
    switch (option) {
        case SearchSourceOption::SubTree:
            return common.workFile(kSearchTreeFile);
        case SearchSourceOption::Folder:
            return common.workFile(kSearchFolderFile);
        case SearchSourceOption::Entire:
            break;
    }
    return common.workFile(kSearchFullFile);
}

std::string SearchHead(const std::filesystem::path& catalogue) {
    std::string head = ReadFileBytes(catalogue, 0, kHeaderSize);
    head.resize(kHeaderSize, '\0');
    const uint64_t offset = ReadEntryOffset(catalogue);
    LineReader reader(catalogue, kTocStart);
    std::string_view line;
    // The read position, 1-based, is checked before each line is read.
    while (reader.position() + 1 < offset && reader.next(line))
        head.append(line).append(kLineEnd);
    return head;
}

size_t EntrySectionStart(const std::filesystem::path& catalogue) {
    const uint64_t offset = ReadEntryOffset(catalogue);
    return offset > 0 ? static_cast<size_t>(offset - 1) : 0;
}

}  // namespace zvx
