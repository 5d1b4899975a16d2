#pragma once
// What the commands that edit entries (set, edit) share: their FIELD=VALUE arguments
// and the summary they print. A field is named by its number, 1 to 22, or by its word:
// name size path medium read-only medium-description date type title artist album genre
// producer style track year comment description length bitrate frequency mode.

#include <string>
#include <string_view>
#include <vector>

#include "document/change_buffers.h"
#include "folder_command_support.h"

namespace zvx {
class Common;
}

namespace zvx::cat {

struct FieldAssignment {
    int field = 0;
    std::string value;
};

// The field a number or a word names (the word without regard to case); 0 for none.
int FieldNumber(std::string_view text);

// The assignments of the positional texts from `first` on, in order. Throws UsageError
// for a text without "=", an unknown field, or when there is none.
std::vector<FieldAssignment> ParseFieldAssignments(const std::vector<std::string>& texts,
                                                   size_t first);

// Throws UsageError unless the value is one the form's list offers: a file-type (field
// 8) of the content types, a genre (field 12) of the genres or "<unknown>". Any other
// field takes any text.
void RequireListValue(const FieldAssignment& assignment);

// Leaving the editor: the buffered edits written by the final apply and FILE replaced
// once, when there are any; "1 entry changed" or "N entries changed" on stderr.
void WriteEdits(Common& common, FolderCatalogue& catalogue, ChangeBuffers& buffers);

}  // namespace zvx::cat
