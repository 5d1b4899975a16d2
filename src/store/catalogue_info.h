#pragma once
// What a catalogue holds, as far as its structure goes: for zvxcat info and for
// diagnosing a damaged file. Reads any bytes without failing on their content.

#include <cstdint>
#include <filesystem>

namespace zvx {

struct CatalogueInfo {
    uint64_t fileLength = 0;
    bool hasVersion = false;
    int formatVersion = 0;     // byte 1
    uint64_t entryOffset = 0;  // bytes 2 to 5, 1-based
    uint64_t tocEnd = 0;       // 1-based position behind the TOC's empty line
    bool tocClosed = false;    // the TOC ends with an empty line, not the file's end
    uint64_t folders = 0;      // TOC groups
    uint64_t entryLines = 0;   // lines from the entry offset on, 8 characters or more
    uint64_t shortLines = 0;   // lines from the entry offset on, shorter than 8
};

// Throws FileError when the file cannot be read.
CatalogueInfo InspectCatalogue(const std::filesystem::path& path);

}  // namespace zvx
