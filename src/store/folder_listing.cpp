#include "store/folder_listing.h"

#include "platform/line_reader.h"
#include "store/catalogue_format.h"
#include "store/entry_offset.h"

namespace zvx {

void ListFolderEntries(const std::filesystem::path& catalogue, std::string_view folderId,
                       const std::function<void(std::string_view line)>& onEntry) {
    const uint64_t offset = ReadEntryOffset(catalogue);
    LineReader reader(catalogue, offset > 0 ? offset - 1 : 0);
    std::string_view line;
    while (reader.next(line)) {
        if (line.size() >= kMinEntryLineLength && line.substr(0, kFolderIdLength) == folderId)
            onEntry(line);
    }
}

}  // namespace zvx
