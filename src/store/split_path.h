#pragma once
// Splitting a path in catalogue form ("c:\Music\a.mp3") into its parts.

#include <string>
#include <string_view>

namespace zvx {

struct SplitPathResult {
    std::string drive;      // up to and including the first ":", or empty
    std::string folder;     // all before the last "\" ("c:" for "c:\a.mp3")
    std::string name;       // the name without its extension
    std::string extension;  // behind the last dot of the name
    bool hasExtension = false;

    // The name with its extension, joined by "." when there is one.
    std::string fileName() const;
};

// Works from the right end: the first "." met divides name and extension, the first
// "\" met ends the scan. A path without any "\" leaves name and folder empty.
SplitPathResult SplitPath(std::string_view path);

}  // namespace zvx
