#include "shell/recent_list.h"

#include <vector>

#include "common/common.h"
#include "common/field_text.h"
#include "common/text_case.h"
#include "store/settings.h"

namespace zvx {

namespace {

std::string RecentKey(int number) {
    return "RECENTFILE" + std::to_string(number);
}

}  // namespace

void RecentAdd(Common& common, std::string_view path) {
    const std::string trimmed(Trim(path));
    if (trimmed.empty())
        return;
    std::vector<std::string>& list = common.Recentlist;
    const std::string upper = UpperCase(trimmed);
    std::erase_if(list, [&](const std::string& entry) { return UpperCase(entry) == upper; });
    while (list.size() > kRecentMax - 1)
        list.pop_back();
    list.insert(list.begin(), trimmed);
    if (common.onRecentRefresh)
        common.onRecentRefresh();
}

std::string RecentCaption(int i, std::string_view path) {
    const std::string mnemonic = "000&" + std::to_string(i);
    return std::string(Right(mnemonic, 3)) + " " + std::string(path);
}

void LoadRecentList(Common& common) {
    common.Recentlist.clear();
    for (int number = 1; number <= kRecentMax; ++number) {
        std::string path = ReadSetting(common, RecentKey(number), "").toText();
        if (!path.empty())
            common.Recentlist.push_back(std::move(path));
    }
}

void StoreRecentList(const Common& common) {
    for (int i = 0; i < kRecentMax; ++i) {
        const size_t index = static_cast<size_t>(i);
        const std::string path = index < common.Recentlist.size() ? common.Recentlist[index] : "";
        WriteSetting(common, RecentKey(i + 1), path);
    }
}

}  // namespace zvx
