#pragma once
// Entry lines: the folder ID and 22 fields joined by the byte 01.

#include <array>
#include <string>
#include <string_view>

namespace zvx {

// The values of an entry besides its name and path (which come from the full path)
// and the read-only flag, by field: 2, 4, 6 to 22.
struct EntryValues {
    std::string size;              // 2
    std::string driveId;           // 4
    std::string driveDescription;  // 6
    std::string date;              // 7
    std::string contentType;       // 8
    std::string title;             // 9
    std::string artist;            // 10
    std::string album;             // 11
    std::string genre;             // 12
    std::string producer;          // 13
    std::string style;             // 14
    std::string track;             // 15
    std::string year;              // 16
    std::string comment;           // 17
    std::string description;       // 18
    std::string length;            // 19
    std::string bitrate;           // 20
    std::string frequency;         // 21
    std::string mode;              // 22
};

// The line for a file: the drive letter is lower-cased before name and path are split
// off the full path; the track passes through the track format; every field is
// cleaned of 01, CR and LF.
std::string ComposeEntryLine(std::string_view folderId, std::string_view fullPath,
                             const EntryValues& values, bool readOnly, int renumberingLevel);

// Field 0 (the first eight characters) and fields 1 to 22 of a line, as views into it.
// What stands between the ID and the first separator is dropped. A line with fewer
// fields repeats its last field in every field behind it.
using EntryFields = std::array<std::string_view, 23>;
// With `lastField` below 22 the split stops there and leaves the fields behind it empty.
EntryFields SplitEntryLine(std::string_view line, int lastField = 22);

}  // namespace zvx
