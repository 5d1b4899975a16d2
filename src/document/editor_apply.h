#pragma once
// Applying the entry editor's edits. Moving from row to row only fills the change
// buffers (TempApply, ApplyLockedSelection); the working copy is written once, by the
// final apply, when the editor is left.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "document/change_buffers.h"
#include "document/editor_form.h"

namespace zvx {

class Common;

// The entry line the form's texts make for the row whose line is `oldLine`
// (Editor_Temp_ApplyChanges, steps 3 to 7). The full path is Label19, a "\" unless it
// ends in one, and Label17. With a file-type beginning with "audio" (in any case) the
// audio fields are read: the track and the year by their numeric value, "n/a" as "" for
// the length and the mode and as "0" for the bitrate and the frequency, which otherwise
// lose their last 5 (" kbps") and 3 (" hz") characters. Any other file-type resets the
// audio fields (title, artist, album, producer, style, length, mode empty, track and
// year 0, bitrate and frequency "0", genre "<unknown>"). The read-only flag is set when
// Label29 ends in "es"; the size is the numeric value of Text7, passing over its group
// blanks. Medium ID and description, date, file-type, comment and size are trimmed.
std::string ComposeEditedLine(std::string_view oldLine, const EditorTexts& texts,
                              int renumberingLevel);

// Editor_Temp_ApplyChanges for the row on show (the caller checks EditorChanged and
// EditorRow): the form's line goes into the buffers; a failure costs the row's edits
// and nothing else.
void TempApply(Common& common, ChangeBuffers& buffers, std::string_view oldLine,
               const EditorTexts& texts, int renumberingLevel);

// Editor_Final_Apply_Changes once the row on show was taken in: with no pair nothing is
// written and false is returned. Otherwise one pass of the rewrite pattern writes each
// buffered old line's new line in its place (a pair serves the first line equal to it),
// the buffers are cleared and the document marked changed. A failed write throws
// FileError and leaves the working copy and the buffers as they were.
bool FinalApply(Common& common, const std::filesystem::path& cfn, ChangeBuffers& buffers);

// The locked fields of the form applied to each of the rows, in order (the caller has
// left out the rows that are not selected when only those are edited). A row's base is
// its buffered new line, or its own line; its locked fields take the form's values; a
// file-type not beginning with "audio:" resets the audio fields, an audio one empties
// the description; the line is composed with the read-only flag clear and buffered.
void ApplyLockedSelection(Common& common, ChangeBuffers& buffers,
                          const std::vector<std::string_view>& rowLines, const EditorForm& form,
                          int renumberingLevel);

}  // namespace zvx
