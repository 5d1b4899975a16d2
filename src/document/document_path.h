#pragma once
// A document's path as the lifecycle reads it. User files have native paths here, so
// the folder ends at the last "/"; the extension follows the last "." of the file
// name, the rule SplitPath applies to catalogue paths.

#include <string>
#include <string_view>

namespace zvx {

struct DocumentPathParts {
    bool hasFolder = false;
    std::string folder;     // all before the last "/" ("/" for a file in the root)
    std::string name;       // the file name without its extension
    std::string extension;  // behind the last "." of the file name, or empty
};

DocumentPathParts SplitDocumentPath(std::string_view path);

// True if the lower-cased extension is "zvx".
bool HasZvxExtension(std::string_view path);

// The name with "zvx" added if it ends with "." and ".zvx" otherwise.
std::string WithZvxExtension(const std::string& name);

}  // namespace zvx
