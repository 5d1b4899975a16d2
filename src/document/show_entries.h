#pragma once
// ShowEntries: the listing of the selected folder, one pass over the entry section of
// the working copy, and the view buffer that lets an unchanged document skip the pass.

#include <cstdint>
#include <filesystem>
#include <string>

#include "document/entry_rows.h"

namespace zvx {

class Common;

// The view buffer of one document window. It holds no rows: it is the line count and
// the file date of the last full pass, and while the date stands, a listing with
// ALLOWVIEWBUFFERING on reads nothing and so shows an empty list. A new window starts
// with the count 0 and an invalid buffer.
struct ViewBuffer {
    std::string BufferDate;  // file date of the working copy when the buffer was made valid
    int16_t BufferCount = 0;
    bool BufferValid = false;
};

// What the window's tree says about the folder to list.
struct ListingSelection {
    bool hasFolders = false;  // List2 has nodes
    std::string folderId;     // the last eight characters of the selected node's Tag
    std::string fullPath;     // the node's FullPath: the names joined by "\", none behind
    bool SubViewIng = false;  // list the entries of all sub-folders as well
};

// The view buffer is given up at the line that makes the count pass this.
inline constexpr long long kViewBufferLineLimit = 64000;

// ShowEntries: the rows of the selected folder in file order; in a sub-view the rows of
// the folder and all folders below it. Lines shorter than eight characters are passed
// over. Fires ZVXREFRESHL at the start of each pass; without folders it ends there,
// leaving the status text alone. Otherwise it shows its status texts and the progress
// and clears both at the end. With ALLOWVIEWBUFFERING on, a pass over an unchanged
// document reads no line and gives no rows; the 64000th line read gives up the buffer
// with a critical message, and the pass starts over unbuffered. Read errors end the
// pass without a message. The window runs Editor_Final_Apply_Changes before, when the
// editor's tab is on show, and the menu-state update after.
EntryRows ShowEntries(Common& common, const std::filesystem::path& workingCopy,
                      const ListingSelection& selection, ViewBuffer& buffer);

}  // namespace zvx
