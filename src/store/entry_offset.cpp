#include "store/entry_offset.h"

#include <string_view>

#include "common/common.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "store/catalogue_format.h"

namespace zvx {

std::string EncodeEntryOffset(uint64_t position) {
    uint64_t digits = position % 100000000;
    std::string bytes(4, '\0');
    for (int i = 3; i >= 0; --i) {
        bytes[i] = static_cast<char>(digits % 100);
        digits /= 100;
    }
    return bytes;
}

uint64_t DecodeEntryOffset(const std::string& fourBytes) {
    uint64_t position = 0;
    for (size_t i = 0; i < 4; ++i) {
        unsigned value = i < fourBytes.size() ? static_cast<unsigned char>(fourBytes[i]) : 0;
        position = position * 100 + value % 100;
    }
    return position;
}

uint64_t ReadEntryOffset(const std::filesystem::path& path) {
    return DecodeEntryOffset(ReadFileBytes(path, 1, 4));
}

uint64_t FindTocEnd(const std::filesystem::path& path) {
    LineReader reader(path, kTocStart);
    std::string_view line;
    while (reader.next(line)) {
        if (line.empty())
            break;
        if (!reader.next(line) || !reader.next(line))
            break;
    }
    return reader.position() + 1;
}

void UpdateEntryOffset(const Common& common, const std::filesystem::path& path) {
    common.SetActiveDocumentChanged();
    WriteFileBytes(path, 1, EncodeEntryOffset(FindTocEnd(path)));
}

}  // namespace zvx
