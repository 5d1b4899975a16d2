#pragma once
// What the entry editor's form (tab 2 of a document window) shows: each control's text
// as a person sees and types it, and which fields are locked. The form is a window;
// everything done with what it shows is made from these values.

#include <array>
#include <string>
#include <string_view>

namespace zvx {

// The controls by the entry field they show, 1 to 22 (index 0 is not used):
//   1 Label17 (read-only)   2 Text7    3 Label19 (read-only)  4 Label16 (read-only)
//   5 Label29 (read-only: "Read-only: Yes", "Read-only: No", "Read-only: n/a")
//   6 Combo4   7 Text1   8 Combo1 (the file-type; empty while none is selected)
//   9 Text3   10 Text2  11 Text4  12 Combo3  13 Text10  14 Text5  15 Text8  16 Text9
//  17 Text6   18 Text11 19 Text12 20 Text13  21 Text14  22 Text15
// Size shows its digit groups ("1 234 567"), bitrate "128 kbps", frequency "44100 hz",
// and a field 19 to 22 that is "0" or empty shows "n/a".
using EditorTexts = std::array<std::string, 23>;

// The lock check boxes by field: 6 Check8, 8 Check1, 9 Check3, 10 Check2, 11 Check4,
// 12 Check5, 13 Check13, 14 Check6, 16 Check12, 17 Check7, 18 Check14. The other
// fields have no lock and stay false.
using EditorLocks = std::array<bool, 23>;

struct EditorForm {
    EditorTexts texts;
    EditorLocks locks{};
};

// Whether the field has a lock check box.
bool HasLock(int field);

// What the field's control shows when it is cleared: "0" for the size, "Read-only: n/a",
// "<unknown>" for the medium description and the genre, "00" for the track, "" for the
// others (field 8: no file-type selected). The medium ID is cleared to nothing, so that
// an entry without one keeps none when it is edited; kMediumIdAtStart is only what its
// label shows before the first row.
std::string EmptyFormValue(int field);
inline constexpr const char* kMediumIdAtStart = "<unavailable>";

// The clearing step for all fields 1 to 22: a field with a lock keeps its text while
// the lock is checked; every other field shows its empty form value.
void ClearForm(EditorForm& form);

// Shows an entry line (folder ID in front) on the form, fields 1 to 22 in their display
// forms: the size in digit groups ("1 234 567", nothing for 0), "Read-only: Yes" or
// "Read-only: No", the date through the date normaliser, the track through the track
// format, the bitrate with " kbps", the frequency with " hz", and "n/a" for a "0" in
// fields 19 to 22. An empty field is cleared; a locked field keeps what the form
// shows. Field 8 is the file-type's text; the window selects Combo1's row of exactly
// that text.
void FillForm(EditorForm& form, std::string_view line, int renumberingLevel);

// Comboenabling: the audio-only fields are enabled unless a file-type is selected that
// does not begin with "Audio:" (then Text11, the description, is enabled instead).
bool AudioFieldsEnabled(std::string_view fileType);

// The year field's check when it loses the focus: a one- or two-digit year becomes a
// four-digit one (7 is 1997, 3 is 2003, 85 is 1985, 29 is 2029), a four-digit year from
// 1000 to 2999 stays, anything else becomes "2000".
std::string YearCheck(std::string_view text);

}  // namespace zvx
