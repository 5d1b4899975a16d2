#pragma once

#include <filesystem>
#include <string_view>

#include "store/entry_line.h"

namespace zvx {

class Common;

// Appends an entry for a file to the end of a catalogue; nothing else of the file is
// touched. The case mode of the settings is applied to title, artist, album, comment,
// description and producer first. With `checkDuplicates` (the marker "no") the
// duplicate check decides whether the line is written. Sets the change flag of the
// active document. Returns whether the line was appended. Throws FileError; the
// catalogue then holds what it held before the call (in an add run, the lines gathered
// before it wait for the next write), so that the call can be made again.
bool AppendEntry(Common& common, const std::filesystem::path& target, std::string_view folderId,
                 std::string_view fullPath, EntryValues values, bool readOnly,
                 bool checkDuplicates);

}  // namespace zvx
