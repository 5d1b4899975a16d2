#include "metadata/id3_tag.h"

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "common/common.h"
#include "common/field_text.h"
#include "common/numeric_value.h"
#include "common/text_case.h"
#include "metadata/genres.h"
#include "platform/file_error.h"
#include "platform/media_file.h"

namespace zvx {

namespace {

constexpr uint64_t kBlockSize = 128;
constexpr int kMaxTrack = 30;
constexpr int kMaxGenre = 115;

// ID3v1 text is Latin-1: each byte is the code point of its character.
std::string Latin1ToUtf8(std::string_view bytes) {
    std::string text;
    for (char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            text += c;
        } else {
            text += static_cast<char>(0xC0 | (byte >> 6));
            text += static_cast<char>(0x80 | (byte & 0x3F));
        }
    }
    return text;
}

// Trimmed before the conversion, so that only the blank byte counts as a blank.
std::string TagText(std::string_view block, size_t first, size_t length) {
    return Latin1ToUtf8(Trim(block.substr(first, length)));
}

// A number rounded half to even to a 16-bit Integer. A value that would overflow gives 0
// rather than an error, so that a year such as "9e99" cannot stop an add run.
int SixteenBit(double value) {
    if (!(std::fabs(value) < 65536))
        return 0;
    const long long rounded = RoundHalfEven(value);
    return rounded < -32768 || rounded > 32767 ? 0 : static_cast<int>(rounded);
}

// A year of two characters gets its century by its value. The rule looks at the decimal
// text, so "-5" becomes "20-5", which reads as 20.
int TagYear(std::string_view yearBytes) {
    const int year = SixteenBit(NumericValue(yearBytes));
    const std::string text = NumberText(year);
    if (text.size() != 2)
        return year;
    return SixteenBit(NumericValue((year <= 20 ? "20" : "19") + text));
}

int TagTrack(unsigned char byte) {
    return byte >= 1 && byte <= kMaxTrack ? byte : 0;
}

std::string TagGenre(unsigned char byte) {
    return byte <= kMaxGenre ? std::to_string(byte) : std::string(kUnknownGenre);
}

// The whole block in one read, or nothing when the file cannot be read.
std::optional<std::string> ReadBlock(const MediaFile& media, uint64_t length) {
    try {
        std::string block = media.readAt(length - kBlockSize, kBlockSize);
        if (block.size() == kBlockSize)
            return block;
    } catch (const FileError&) {
    }
    return std::nullopt;
}

void FillTagValues(TagValues& tag, std::string_view block) {
    tag.HasID3Tag = true;
    tag.TagTitle = TagText(block, 3, 30);
    tag.TagArtist = TagText(block, 33, 30);
    tag.TagAlbum = TagText(block, 63, 30);
    tag.TagYear = TagYear(block.substr(93, 4));
    // 29 bytes whether or not the tag has a track byte.
    tag.TagComment = TagText(block, 97, 29);
    tag.TagTrack = TagTrack(static_cast<unsigned char>(block[126]));
    tag.TagGenre = TagGenre(static_cast<unsigned char>(block[127]));
}

}  // namespace

void ReadID3Tag(Common& common, const std::filesystem::path& file) {
    ReadID3Tag(common, MediaFile(file));
}

void ReadID3Tag(Common& common, const MediaFile& media) {
    TagValues& tag = common.id3;
    const bool previousHasTag = tag.HasID3Tag;
    tag = TagValues{};
    tag.HasID3Tag = previousHasTag;

    if (!media.exists())
        return;
    const uint64_t length = media.size();
    if (length <= kBlockSize) {
        tag.HasID3Tag = false;
        return;
    }
    const std::optional<std::string> block = ReadBlock(media, length);
    if (block && UpperCase(block->substr(0, 3)) == "TAG")
        FillTagValues(tag, *block);
}

}  // namespace zvx
