#include "store/split_path.h"

namespace zvx {

std::string SplitPathResult::fileName() const {
    return hasExtension ? name + "." + extension : name;
}

SplitPathResult SplitPath(std::string_view path) {
    SplitPathResult result;
    size_t colon = path.find(':');
    if (colon != std::string_view::npos)
        result.drive = path.substr(0, colon + 1);
    size_t dot = std::string_view::npos;
    for (size_t i = path.size(); i-- > 0;) {
        char c = path[i];
        if (c == '.' && dot == std::string_view::npos) {
            dot = i;
            result.extension = path.substr(i + 1);
            result.hasExtension = true;
        } else if (c == '\\') {
            size_t nameEnd = dot == std::string_view::npos ? path.size() : dot;
            result.name = path.substr(i + 1, nameEnd - i - 1);
            result.folder = path.substr(0, i);
            break;
        }
    }
    return result;
}

}  // namespace zvx
