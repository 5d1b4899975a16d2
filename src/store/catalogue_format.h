#pragma once
// Constants of the .zvx catalogue file; docs/catalogue-format.md describes the layout.

#include <cstddef>

namespace zvx {

inline constexpr int kCurrentFormatVersion = 1;
// Bytes 1 to 5: the version byte and the four entry-offset bytes.
inline constexpr size_t kHeaderSize = 5;
// 0-based offset of the TOC section (position 6).
inline constexpr size_t kTocStart = 5;
inline constexpr char kFieldSeparator = '\x01';
inline constexpr const char* kLineEnd = "\r\n";
inline constexpr size_t kFolderIdLength = 8;
inline constexpr int kEntryFieldCount = 22;
inline constexpr long long kFolderIdLimit = 99999999;
// The icon character of a folder line is this plus the icon number.
inline constexpr int kIconCharBase = 40;
// Lines shorter than this are no entries.
inline constexpr size_t kMinEntryLineLength = 8;

// Temporary files of the rewrite pattern and the duplicate check, in the work folder.
inline constexpr const char* kTempFile = "tempfile.tmp";
inline constexpr const char* kDecheckFile = "decheck.tmp";
inline constexpr const char* kTempFile2 = "tempfil2.tmp";

}  // namespace zvx
