#include "metadata/file_content_summary.h"

#include <exception>

#include "common/common.h"
#include "common/numeric_value.h"
#include "common/text_case.h"
#include "metadata/genres.h"
#include "metadata/id3_tag.h"
#include "platform/line_reader.h"
#include "platform/media_file.h"

namespace zvx {

namespace {

constexpr int kSummaryLines = 5;
constexpr const char* kNotSet = "<not set>";

void MarkNotSet(std::string& value) {
    if (value.empty())
        value = kNotSet;
}

// The tag values left empty read "<not set>" from now on, in the common module too.
std::string TagSummary(Common& common, const MediaFile& media) {
    ReadID3Tag(common, media);
    TagValues& tag = common.id3;
    if (!tag.HasID3Tag)
        return "Tagged: no\r<Other track information is unknown>";
    for (std::string* value :
         {&tag.TagProducer, &tag.TagTitle, &tag.TagAlbum, &tag.TagArtist, &tag.TagComment})
        MarkNotSet(*value);
    const int genre = static_cast<int>(RoundHalfEven(NumericValue(tag.TagGenre)));
    return "Tagged: yes\rTrack: " + tag.TagTitle + "\rArtist: " + tag.TagArtist +
           "\rAlbum: " + tag.TagAlbum + "\rGenre: " + std::string(GenreDisplayName(genre)) +
           "\rComment: " + tag.TagComment;
}

std::string FirstTextLines(const std::filesystem::path& path) {
    LineReader reader(path);
    std::string text;
    std::string_view line;
    for (int read = 0; read < kSummaryLines && reader.next(line); ++read) {
        if (text.empty())
            text = line;
        else
            text.append("\r").append(line);
    }
    return text;
}

std::string SummaryByCategory(Common& common, const std::filesystem::path& path,
                              std::string_view category) {
    if (category != "mp3" && category != "txt")
        return {};
    // Only a regular file that opens is read: a FIFO would stall the text reader, and the
    // tag reader passes over a file it cannot open, keeping the previous file's
    // HasID3Tag.
    const MediaFile media(path);
    media.requireReadable();
    return category == "mp3" ? TagSummary(common, media) : FirstTextLines(path);
}

}  // namespace

std::string FileContentSummary(Common& common, const std::filesystem::path& path,
                               std::string_view contentCategory) {
    const std::string category = LowerCase(contentCategory);
    try {
        return SummaryByCategory(common, path, category);
    } catch (const std::exception&) {
        return "Error while retrieving ZVX-Content information for: " + path.string() + " (" +
               category + ")";
    }
}

}  // namespace zvx
