#pragma once
// Where the entry editor stands among the rows it edits, and the texts it shows about
// it: "Entry N of M", the count of changed entries, the jump list, the style chooser's
// checks and the track spinner's steps. The editor's window only shows what these give.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zvx {

// What the editor remembers from its last show (the document window's fields).
struct EditorMemory {
    long EditorPosition = 0;      // 1-based among the rows being edited
    int EditorRow = 0;            // 1-based index in ListView1 of the row on show; 0 none
    long EditorLastPosition = 0;  // EditorPosition of the last show
    std::string EditorFolder;     // FullPath of the folder of the last show
    std::string EditorCount;      // decimal row count of the last show
};

// The listing as the editor sees it.
struct EditorListing {
    std::string folderPath;           // the selected folder's FullPath
    int rowCount = 0;                 // rows of ListView1
    std::vector<int> selectedRows{};  // 1-based indexes of the selected rows, in list order
    bool selectedOnly = false;        // Check15, "Edit selected entries only"
};

// EditorRefresh's choice of the row to show.
struct EditorPlace {
    long position = 0;         // EditorPosition after the reset and the clamp
    long count = 0;            // the rows being edited; 0 leaves nothing to show
    int row = 0;               // 1-based index in ListView1 of the row to show; 0 none
    bool backEnabled = false;  // Command5
    bool nextEnabled = false;  // Command6
};

// The position goes back to 0 when the folder or the row count differs from the last
// show, then is clamped to 1 and to the count of rows being edited: the selected rows
// with Check15 on, all rows otherwise. With Check15 on, position n shows the n-th
// selected row.
EditorPlace PlaceEditor(const EditorMemory& memory, const EditorListing& listing);

// Label10: "Entry 3 of 12", with " (changed)" when the row on show has buffered changes.
std::string EntryCaption(long position, long count, bool changed);

// Label21 by the number of buffered changes: "(no changes made yet)", "(1 entry was
// changed)", "(N entries were changed)".
std::string ChangesCaption(size_t changedEntries);

// A row of the jump list (ListView3).
struct JumpRow {
    std::string entry;     // the position as its last four digits, "0007"
    std::string filename;  // field 1 of the line
    std::string state;     // "changed" when the line has buffered changes, else empty
};

// One row per edited row, in the order of `lines` (the edited rows' entry lines).
std::vector<JumpRow> JumpList(const std::vector<std::string_view>& lines,
                              const std::function<bool(std::string_view)>& changed);

// The position a click on a jump list row goes to: the numeric value of its first column.
long JumpPosition(std::string_view entryColumn);

// Whether the style chooser opens with the style checked: ", " + name occurs in ", " +
// the style text, so a name that only begins a longer one counts too.
bool StyleChecked(std::string_view name, std::string_view styleText);

// The style text rebuilt from the checked names, in list order, joined by ", ".
std::string StyleText(const std::vector<std::string>& checkedNames);

// The track spinner (VScroll1 with 0, 1 and 2, back at 1 after each change): 2 steps
// the track down when its numeric value is at least 1, 0 steps it up unless the value is
// above 9998. Any other case leaves the text as it is.
std::string TrackStep(std::string_view track, int spinnerValue);

}  // namespace zvx
