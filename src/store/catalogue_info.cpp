#include "store/catalogue_info.h"

#include <string>
#include <string_view>

#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "store/catalogue_format.h"
#include "store/entry_offset.h"
#include "store/toc.h"

namespace zvx {

namespace {

void CountToc(const std::filesystem::path& path, CatalogueInfo& info) {
    LineReader reader(path, kTocStart);
    TocGroup group;
    while (ReadTocGroup(reader, group, &info.tocClosed))
        ++info.folders;
    info.tocEnd = reader.position() + 1;
}

void CountEntries(const std::filesystem::path& path, CatalogueInfo& info) {
    if (info.entryOffset == 0 || info.entryOffset > info.fileLength)
        return;
    LineReader reader(path, info.entryOffset - 1);
    std::string_view line;
    while (reader.next(line)) {
        if (line.size() >= kMinEntryLineLength)
            ++info.entryLines;
        else
            ++info.shortLines;
    }
}

}  // namespace

CatalogueInfo InspectCatalogue(const std::filesystem::path& path) {
    CatalogueInfo info;
    info.fileLength = FileLength(path);
    std::string header = ReadFileBytes(path, 0, kHeaderSize);
    info.hasVersion = !header.empty();
    if (info.hasVersion)
        info.formatVersion = static_cast<unsigned char>(header[0]);
    info.entryOffset = DecodeEntryOffset(header.size() > 1 ? header.substr(1) : std::string());
    CountToc(path, info);
    CountEntries(path, info);
    return info;
}

}  // namespace zvx
