#include "document/change_buffers.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace zvx {

size_t ChangeBuffers::PrefixSlot(std::string_view line) {
    uint64_t prefix = 0;
    if (!line.empty())
        std::memcpy(&prefix, line.data(), std::min(line.size(), sizeof prefix));
    // A multiplicative hash: the high bits of the product mix all eight bytes.
    return static_cast<size_t>((prefix * 0x9E3779B97F4A7C15ULL) >> 48);
}

void ChangeBuffers::record(std::string_view oldLine, std::string newLine) {
    auto pair = pairs_.find(oldLine);
    if (newLine == oldLine) {
        if (pair != pairs_.end())
            pairs_.erase(pair);
    } else if (pair != pairs_.end()) {
        pair->second = std::move(newLine);
    } else {
        pairs_.emplace(oldLine, std::move(newLine));
        prefixes_.set(PrefixSlot(oldLine));
    }
}

const std::string* ChangeBuffers::newLineFor(std::string_view oldLine) const {
    if (!mayHold(oldLine))
        return nullptr;
    auto pair = pairs_.find(oldLine);
    return pair == pairs_.end() ? nullptr : &pair->second;
}

bool ChangeBuffers::take(std::string_view fileLine, std::string& newLine) {
    if (!mayHold(fileLine))
        return false;
    auto pair = pairs_.find(fileLine);
    if (pair == pairs_.end())
        return false;
    newLine = std::move(pair->second);
    pairs_.erase(pair);
    return true;
}

void ChangeBuffers::clear() {
    pairs_.clear();
    prefixes_.reset();
}

}  // namespace zvx
