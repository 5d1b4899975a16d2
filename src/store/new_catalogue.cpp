#include "store/new_catalogue.h"

#include <string>

#include "platform/file_io.h"
#include "store/catalogue_format.h"
#include "store/entry_offset.h"

namespace zvx {

void CreateCatalogue(const Common& common, const std::filesystem::path& path) {
    std::string bytes(kHeaderSize, '\0');
    bytes[0] = static_cast<char>(kCurrentFormatVersion);
    bytes += kLineEnd;
    WriteEmptyFile(path);
    WriteFileBytes(path, 0, bytes);
    UpdateEntryOffset(common, path);
}

}  // namespace zvx
