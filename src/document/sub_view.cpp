#include "document/sub_view.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "common/field_text.h"
#include "common/text_case.h"
#include "platform/line_reader.h"
#include "store/catalogue_format.h"

namespace zvx {

namespace {

uint64_t IdKey(std::string_view id) {
    uint64_t key = 0;
    std::memcpy(&key, id.data(), kFolderIdLength);
    return key;
}

std::string WithTrailingBackslash(std::string text) {
    if (text.empty() || text.back() != '\\')
        text += '\\';
    return text;
}

}  // namespace

WantedFolderIds::WantedFolderIds(const std::vector<std::string>& idLines)
    : count_(std::min(idLines.size(), kWantedIdPlaces)) {
    for (size_t i = 0; i < count_; ++i) {
        // An ID of fewer than eight characters holds a place but matches no line.
        if (idLines[i].size() >= kFolderIdLength)
            keys_.push_back(IdKey(idLines[i]));
    }
    std::sort(keys_.begin(), keys_.end());
}

bool WantedFolderIds::contains(std::string_view id) const {
    return id.size() >= kFolderIdLength &&
           std::binary_search(keys_.begin(), keys_.end(), IdKey(id));
}

WantedFolderIds SubViewFolderIds(const std::filesystem::path& catalogue,
                                 std::string_view fullPath) {
    const std::string selected = WithTrailingBackslash(LowerCase(fullPath));
    std::vector<std::string> ids;
    LineReader reader(catalogue, kTocStart);
    std::string_view line;
    while (reader.next(line) && !Trim(line).empty()) {
        const bool below = WithTrailingBackslash(LowerCase(line)).starts_with(selected);
        if (!reader.next(line))
            line = {};
        if (!reader.next(line))
            line = {};
        if (below)
            ids.emplace_back(line.substr(0, kFolderIdLength));
    }
    return WantedFolderIds(ids);
}

}  // namespace zvx
