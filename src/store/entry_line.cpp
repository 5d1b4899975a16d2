#include "store/entry_line.h"

#include <algorithm>

#include "common/field_text.h"
#include "common/text_case.h"
#include "store/catalogue_format.h"
#include "store/split_path.h"
#include "store/track_format.h"

namespace zvx {

namespace {

// The path with its first character in lower case.
std::string LowerFirstCharacter(std::string_view path) {
    if (path.empty())
        return {};
    // An ASCII letter is lowered alike in both code pages.
    if (static_cast<unsigned char>(path[0]) < 0x80) {
        std::string lowered(path);
        if (lowered[0] >= 'A' && lowered[0] <= 'Z')
            lowered[0] = static_cast<char>(lowered[0] - 'A' + 'a');
        return lowered;
    }
    std::string_view first = Characters(path).front();
    return LowerChar(first, IsValidUtf8(path)) + std::string(path.substr(first.size()));
}

}  // namespace

std::string ComposeEntryLine(std::string_view folderId, std::string_view fullPath,
                             const EntryValues& v, bool readOnly, int renumberingLevel) {
    SplitPathResult split = SplitPath(LowerFirstCharacter(fullPath));
    const std::string name = split.fileName();
    const std::string track = FormatTrack(v.track, renumberingLevel);
    const std::string_view fields[kEntryFieldCount] = {name,
                                                       v.size,
                                                       split.folder,
                                                       v.driveId,
                                                       readOnly ? "1" : "0",
                                                       v.driveDescription,
                                                       v.date,
                                                       v.contentType,
                                                       v.title,
                                                       v.artist,
                                                       v.album,
                                                       v.genre,
                                                       v.producer,
                                                       v.style,
                                                       track,
                                                       v.year,
                                                       v.comment,
                                                       v.description,
                                                       v.length,
                                                       v.bitrate,
                                                       v.frequency,
                                                       v.mode};
    size_t length = folderId.size();
    for (std::string_view field : fields)
        length += field.size() + 1;
    std::string line;
    line.reserve(length);
    // No field may hold a separator or a line break: each becomes a blank.
    auto append = [&line](std::string_view text) {
        const size_t from = line.size();
        line += text;
        std::replace_if(
            line.begin() + static_cast<std::ptrdiff_t>(from), line.end(),
            [](char c) { return c == kFieldSeparator || c == '\r' || c == '\n'; }, ' ');
    };
    append(folderId);
    for (std::string_view field : fields) {
        line += kFieldSeparator;
        append(field);
    }
    return line;
}

EntryFields SplitEntryLine(std::string_view line, int lastField) {
    EntryFields fields;
    fields[0] = line.substr(0, kFolderIdLength);
    std::string_view rest = line.size() > kFolderIdLength ? line.substr(kFolderIdLength) : "";
    size_t sep = rest.find(kFieldSeparator);
    std::string_view last;
    for (int i = 1; i <= std::min(lastField, kEntryFieldCount); ++i) {
        if (sep != std::string_view::npos) {
            rest.remove_prefix(sep + 1);
            sep = rest.find(kFieldSeparator);
            last = rest.substr(0, sep);
        }
        fields[i] = last;
    }
    return fields;
}

}  // namespace zvx
