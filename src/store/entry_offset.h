#pragma once
// The entry offset: bytes 2 to 5 of a catalogue, the 1-based position of the first
// entry line, as eight decimal digits two to a byte.

#include <cstdint>
#include <filesystem>
#include <string>

namespace zvx {

class Common;

// The four bytes for a position; a position above 99,999,999 keeps its low 8 digits.
std::string EncodeEntryOffset(uint64_t position);
// The position of four bytes; a byte above 99 gives only its last two digits.
uint64_t DecodeEntryOffset(const std::string& fourBytes);

// Reads bytes 2 to 5 of the file; missing bytes count as 0.
uint64_t ReadEntryOffset(const std::filesystem::path& path);

// The 1-based position just behind the empty line that closes the TOC section (or
// behind the last byte when the file has none).
uint64_t FindTocEnd(const std::filesystem::path& path);

// Writes the offset of the TOC's end into bytes 2 to 5 and sets the change flag of the
// active document.
void UpdateEntryOffset(const Common& common, const std::filesystem::path& path);

}  // namespace zvx
