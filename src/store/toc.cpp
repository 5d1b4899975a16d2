#include "store/toc.h"

#include "common/field_text.h"
#include "platform/line_reader.h"
#include "store/catalogue_format.h"

namespace zvx {

std::string TocGroup::description() const {
    return descriptionLine.empty() ? std::string()
                                   : descriptionLine.substr(0, descriptionLine.size() - 1);
}

int TocGroup::icon() const {
    int code = descriptionLine.empty() ? 0 : static_cast<unsigned char>(descriptionLine.back());
    return code - kIconCharBase;
}

TocGroup MakeTocGroup(std::string_view path, std::string_view description, int icon,
                      std::string_view id) {
    TocGroup group;
    group.path = CleanFieldText(path);
    group.descriptionLine = CleanFieldText(description);
    group.descriptionLine += static_cast<char>(kIconCharBase + icon);
    group.id = CleanFieldText(id);
    return group;
}

bool ReadTocGroup(LineReader& reader, TocGroup& group, bool* closed) {
    std::string_view line;
    if (!reader.next(line))
        return false;
    if (line.empty()) {
        if (closed)
            *closed = true;
        return false;
    }
    group.path = line;
    group.descriptionLine = reader.next(line) ? std::string(line) : std::string();
    group.id = reader.next(line) ? std::string(line) : std::string();
    return true;
}

std::vector<TocGroup> ReadTocGroups(const std::filesystem::path& path) {
    std::vector<TocGroup> groups;
    LineReader reader(path, kTocStart);
    TocGroup group;
    while (ReadTocGroup(reader, group))
        groups.push_back(group);
    return groups;
}

}  // namespace zvx
