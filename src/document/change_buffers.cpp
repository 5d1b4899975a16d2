#include "document/change_buffers.h"

namespace zvx {

void ChangeBuffers::record(std::string_view oldLine, std::string newLine) {
    auto pair = pairs_.find(oldLine);
    if (newLine == oldLine) {
        if (pair != pairs_.end())
            pairs_.erase(pair);
    } else if (pair != pairs_.end()) {
        pair->second = std::move(newLine);
    } else {
        pairs_.emplace(oldLine, std::move(newLine));
    }
}

const std::string* ChangeBuffers::newLineFor(std::string_view oldLine) const {
    auto pair = pairs_.find(oldLine);
    return pair == pairs_.end() ? nullptr : &pair->second;
}

bool ChangeBuffers::take(std::string_view fileLine, std::string& newLine) {
    auto pair = pairs_.find(fileLine);
    if (pair == pairs_.end())
        return false;
    newLine = std::move(pair->second);
    pairs_.erase(pair);
    return true;
}

}  // namespace zvx
