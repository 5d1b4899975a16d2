#include "store/folder_id.h"

#include <algorithm>
#include <set>

#include "common/common.h"
#include "common/field_text.h"
#include "common/numeric_value.h"
#include "store/catalogue_format.h"
#include "store/toc.h"

namespace zvx {

std::string FolderIdText(long long number) {
    return std::string(Right("00000000" + std::to_string(number), kFolderIdLength));
}

std::string FreeFolderID(const std::vector<TocGroup>& groups) {
    std::set<double> used;
    for (const TocGroup& group : groups)
        used.insert(NumericValue(group.id));
    long long candidate = 0;
    while (used.count(static_cast<double>(candidate)))
        ++candidate;
    return FolderIdText(candidate);
}

std::string FreeFolderID(const std::filesystem::path& catalogue) {
    return FreeFolderID(ReadTocGroups(catalogue));
}

void ScanHighestFolderID(Common& common, const std::filesystem::path& catalogue) {
    long long counter = 0;
    for (const TocGroup& group : ReadTocGroups(catalogue)) {
        // IDs are eight digits; a garbage line must not overflow the counter.
        double value = std::min(NumericValue(group.id), 1e15);
        if (value >= static_cast<double>(counter))
            counter = static_cast<long long>(value) + 1;
    }
    common.folderIdCounter = counter;
}

std::string NextFolderID(Common& common) {
    if (common.folderIdCounter > kFolderIdLimit) {
        common.screen().message("", "Warning! FolderID is over the 99999999 limit!!!!",
                                MsgButtons::OkOnly, MsgIcon::Critical);
    }
    return FolderIdText(common.folderIdCounter++);
}

}  // namespace zvx
