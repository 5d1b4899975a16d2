#include "document/document_path.h"

#include "common/text_case.h"

namespace zvx {

DocumentPathParts SplitDocumentPath(std::string_view path) {
    DocumentPathParts parts;
    size_t slash = path.rfind('/');
    std::string_view fileName = path;
    if (slash != std::string_view::npos) {
        parts.hasFolder = true;
        parts.folder = slash == 0 ? "/" : std::string(path.substr(0, slash));
        fileName = path.substr(slash + 1);
    }
    size_t dot = fileName.rfind('.');
    parts.name = fileName.substr(0, dot);
    if (dot != std::string_view::npos)
        parts.extension = fileName.substr(dot + 1);
    return parts;
}

bool HasZvxExtension(std::string_view path) {
    return LowerCase(SplitDocumentPath(path).extension) == "zvx";
}

std::string WithZvxExtension(const std::string& name) {
    return name + (!name.empty() && name.back() == '.' ? "zvx" : ".zvx");
}

}  // namespace zvx
