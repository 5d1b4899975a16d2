#pragma once
// The hand-over files an extension finds in the application folder when it starts:
// current.zvd (the event, the active document's working copy and its file) and
// selected.zvd (the selected folder, the sub-view flag and the selected rows' entry
// lines). Lines end CR LF.

#include <string>
#include <vector>

namespace zvx {

class Common;

inline constexpr const char* kCurrentHandOverFile = "current.zvd";
inline constexpr const char* kSelectedHandOverFile = "selected.zvd";

// What the active window shows. Anything the window cannot tell (no window, no
// selection) stays empty.
struct HandOverFacts {
    bool searcher = false;  // the search window is the active window
    std::string workingCopy;
    std::string caption;
    std::string folderTag;  // the selected node's tag: description and 8-digit ID
    bool subView = false;
    std::vector<std::string> selectedTags;  // the selected rows' entry lines, in list order
};

// Writes both files for the event. For the search window the document lines and the
// folder stay empty and the sub-view flag is "1". The caption is handed over only for a
// document saved as ".zvx" (in any case); a new document's is not a file. Throws
// FileError.
void WriteHandOverFiles(const Common& common, const std::string& eventName,
                        const HandOverFacts& facts);

}  // namespace zvx
