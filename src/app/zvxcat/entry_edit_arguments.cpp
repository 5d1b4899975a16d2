#include "entry_edit_arguments.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iostream>

#include "arguments.h"
#include "common/text_case.h"
#include "document/editor_apply.h"
#include "metadata/content_types.h"
#include "metadata/genres.h"

namespace zvx::cat {

namespace {

constexpr std::array<std::string_view, 22> kFieldWords = {
    "name",     "size",    "path",      "medium", "read-only", "medium-description",
    "date",     "type",    "title",     "artist", "album",     "genre",
    "producer", "style",   "track",     "year",   "comment",   "description",
    "length",   "bitrate", "frequency", "mode"};

bool OnTheList(const FieldAssignment& assignment) {
    if (assignment.field == 8)
        return std::ranges::any_of(ContentTypeVocabulary(), [&](const ContentTypeIcon& type) {
            return type.contentType == assignment.value;
        });
    return assignment.value == kUnknownGenre ||
           std::ranges::find(GenreChoices(), assignment.value) != GenreChoices().end();
}

}  // namespace

int FieldNumber(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc() && end == text.data() + text.size())
        return number >= 1 && number <= 22 ? number : 0;
    for (size_t i = 0; i < kFieldWords.size(); ++i) {
        if (TextEquals(text, kFieldWords[i]))
            return static_cast<int>(i) + 1;
    }
    return 0;
}

std::vector<FieldAssignment> ParseFieldAssignments(const std::vector<std::string>& texts,
                                                   size_t first) {
    std::vector<FieldAssignment> assignments;
    for (size_t i = first; i < texts.size(); ++i) {
        const size_t equals = texts[i].find('=');
        if (equals == std::string::npos)
            throw UsageError("'" + texts[i] + "' is no FIELD=VALUE");
        const int field = FieldNumber(std::string_view(texts[i]).substr(0, equals));
        if (field == 0)
            throw UsageError("unknown field '" + texts[i].substr(0, equals) + "'");
        assignments.push_back({field, texts[i].substr(equals + 1)});
    }
    if (assignments.empty())
        throw UsageError("no FIELD=VALUE given");
    return assignments;
}

void RequireListValue(const FieldAssignment& assignment) {
    if ((assignment.field == 8 || assignment.field == 12) && !OnTheList(assignment))
        throw UsageError("'" + assignment.value + "' is not in the list of the " +
                         (assignment.field == 8 ? "file-types" : "genres"));
}

void WriteEdits(Common& common, FolderCatalogue& catalogue, ChangeBuffers& buffers) {
    const size_t changed = buffers.size();
    if (changed > 0) {
        FinalApply(common, catalogue.openWorkingCopy(), buffers);
        catalogue.save();
    }
    std::cerr << changed << (changed == 1 ? " entry" : " entries") << " changed\n";
}

}  // namespace zvx::cat
