#include "metadata/content_types.h"

#include <algorithm>

#include "common/field_text.h"
#include "common/text_case.h"

namespace zvx {

namespace {

constexpr ContentTypeIcon kVocabulary[] = {
    {"Audio: Album", 1},
    {"Audio: CD Single", 1},
    {"Audio: Compilation", 1},
    {"Audio: Single-Track", 1},
    {"Audio: Soundtrack", 1},
    {"Audio: MixTape", 1},
    {"Audio: Vinyl", 1},
    {"Audio: Cassette", 1},
    {"Audio: unknown", 1},
    {"Document: Text", 4},
    {"Document: Presentation", 13},
    {"Document: Database", 14},
    {"Document: ZVX DataBase", 11},
    {"Document: Html", 15},
    {"Document: 3D-Scene", 16},
    {"Document: Video/Animation", 8},
    {"Document: Image", 10},
    {"Document: Compressed File", 17},
    {"Document: Encrypted File", 2},
    {"Document: unknown", 5},
    {"Software: Application", 9},
    {"Software: Tool", 9},
    {"Software: Shareware", 9},
    {"Software: Freeware", 9},
    {"Software: Other Wares", 9},
    {"Software: unknown", 9},
    {"Document: Help File", 20},
    {"Document: System File", 5},  // shares the icon of "Document: unknown" on purpose
    {"Document: Information File", 3},
    {"unknown", kOtherContentIcon},
};

struct ExtensionRow {
    std::string_view extension;
    std::string_view contentType;
    std::string_view category;
};

constexpr std::string_view kText = "Document: Text";
constexpr std::string_view kAudio = "Audio: unknown";
constexpr std::string_view kVideo = "Document: Video/Animation";
constexpr std::string_view kImage = "Document: Image";
constexpr std::string_view kSystem = "Document: System File";
constexpr std::string_view kInfo = "Document: Information File";
constexpr std::string_view kCompressed = "Document: Compressed File";
constexpr std::string_view kHtml = "Document: Html";

constexpr ExtensionRow kExtensionTable[] = {
    {"zvx", "Document: ZVX DataBase", "zvx"},
    {"txt", kText, "txt"},
    {"doc", kText, "txt"},
    {"rtf", kText, "txt"},
    {"hlp", "Document: Help File", ""},
    {"mp3", kAudio, "mp3"},
    {"mpeg3", kAudio, "mp3"},
    {"avi", kVideo, "video"},
    {"mpg", kVideo, "video"},
    {"mpeg", kVideo, "video"},
    {"mpeg1", kVideo, "video"},
    {"mpeg2", kVideo, "video"},
    {"mpeg4", kVideo, "video"},
    {"mp1", kVideo, "video"},
    {"mp2", kVideo, "video"},
    {"mp4", kVideo, "video"},
    {"mov", kVideo, "video"},
    {"jpg", kImage, "image"},
    {"jpeg", kImage, "image"},
    {"gif", kImage, "image"},
    {"png", kImage, "image"},
    {"tif", kImage, "image"},
    {"tiff", kImage, "image"},
    {"iff", kImage, "image"},
    {"bmp", kImage, "image"},
    {"pcx", kImage, "image"},
    {"cdr", kImage, "image"},
    {"cmx", kImage, "image"},
    {"cgm", kImage, "image"},
    {"wmf", kImage, "image"},
    {"cga", kImage, "image"},
    {"ini", kSystem, "system"},
    {"sys", kSystem, "system"},
    {"nfo", kInfo, "info"},
    {"diz", kInfo, "info"},
    {"wav", kAudio, "sound"},
    {"au", kAudio, "sound"},
    {"sun", kAudio, "sound"},
    {"voc", kAudio, "sound"},
    {"smp", kAudio, "sound"},
    {"mod", kAudio, "sound"},
    {"s3m", kAudio, "sound"},
    {"vox", kAudio, "sound"},
    {"zip", kCompressed, "compressed"},
    {"arj", kCompressed, "compressed"},
    {"gz", kCompressed, "compressed"},
    {"htm", kHtml, "html"},
    {"html", kHtml, "html"},
    {"com", "Software: Application", "exe"},
    {"exe", "Software: Application", "exe"},
    {"bat", "Software: unknown", "exe"},
};

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// Lower case as the program applies it; ASCII text, the usual case, is done in place.
std::string LowerExtension(std::string_view text) {
    if (!IsAscii(text))
        return LowerCase(text);
    std::string lower(text);
    for (char& c : lower) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return lower;
}

}  // namespace

std::span<const ContentTypeIcon> ContentTypeVocabulary() {
    return kVocabulary;
}

int IconOfContentType(std::string_view contentType) {
    for (const ContentTypeIcon& row : kVocabulary) {
        if (row.contentType == contentType)
            return row.icon;
    }
    return kOtherContentIcon;
}

ExtensionContent ContentTypeFromExtension(std::string_view extension) {
    ExtensionContent result{kUnknownContentType, {}, LowerExtension(Trim(extension))};
    if (!result.extension.empty() && result.extension.front() == '.')
        result.extension.erase(0, 1);
    for (const ExtensionRow& row : kExtensionTable) {
        if (row.extension == result.extension) {
            result.contentType = row.contentType;
            result.category = row.category;
            break;
        }
    }
    return result;
}

}  // namespace zvx
