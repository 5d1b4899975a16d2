#pragma once
// How one file on a medium becomes one entry line of a catalogue.

#include <filesystem>
#include <string_view>

namespace zvx {

class Common;

// Reads the file's facts, its MP3 stream and ID3 tag and its scanned name, merges them
// by the settings and appends the entry to `cfn` (with `checkDoubles` through the
// duplicate check). `file` is the native path; the entry holds it in catalogue form.
// A failing step brings FileErrorDialog: Retry repeats that step, Ignore skips the
// file, Abort skips it and sets AbortAdding. Only a regular file becomes an entry:
// anything else fails the first step with 75 ("Error while accessing a directory!").
void AddFileEntry(Common& common, const std::filesystem::path& cfn,
                  const std::filesystem::path& file, std::string_view folderId, bool detag,
                  bool checkDoubles);

}  // namespace zvx
