#include "document/editor_choices.h"

#include <filesystem>

#include "document/styles_list.h"
#include "metadata/content_icon.h"
#include "metadata/content_types.h"
#include "metadata/genres.h"
#include "platform/line_reader.h"

namespace zvx {

namespace {

constexpr std::string_view kMediumDescriptions[] = {
    "HD",   "CD: Software", "CD: Backup", "CD: MP3", "CD: Utilities", "Audio-CD",
    "Zip:", "LS-120:",      "Video:",     "Ditto:",  "Jazz:",         "<unknown>"};

// The file name the pictures of Combo1 are asked for.
constexpr std::string_view kSampleName = "c:\\test.zvx";

}  // namespace

std::vector<FileTypeChoice> FileTypeChoices(const LoadedSettings& settings) {
    std::vector<FileTypeChoice> choices;
    for (const ContentTypeIcon& type : ContentTypeVocabulary()) {
        const bool unknown = type.contentType == "unknown";
        choices.push_back(
            {type.contentType,
             unknown ? kOtherContentIcon
                     : IconFromContentType(kSampleName, type.contentType, settings).icon});
    }
    return choices;
}

std::vector<std::string_view> MediumDescriptionChoices() {
    return {std::begin(kMediumDescriptions), std::end(kMediumDescriptions)};
}

std::vector<std::string_view> GenreNameChoices() {
    std::vector<std::string_view> genres(GenreChoices().begin(), GenreChoices().end());
    genres.push_back(kUnknownGenre);
    return genres;
}

std::vector<std::string> ReadStyles(const Common& common) {
    const std::filesystem::path file = StylesListFile(common);
    if (!std::filesystem::exists(file))
        WriteDefaultStyles(common);
    std::vector<std::string> styles;
    LineReader reader(file);
    for (std::string_view line; reader.next(line);)
        styles.emplace_back(line);
    return styles;
}

}  // namespace zvx
