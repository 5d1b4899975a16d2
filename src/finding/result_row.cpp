#include "finding/result_row.h"

#include <algorithm>

#include "common/field_text.h"
#include "common/numeric_value.h"
#include "document/column_layout.h"
#include "document/entry_rows.h"
#include "finding/search_run.h"
#include "metadata/content_icon.h"
#include "store/catalogue_format.h"
#include "store/track_format.h"

namespace zvx {

namespace {

// The pieces of a tail split at each byte 01, as far as there are any.
std::vector<std::string_view> TailPieces(std::string_view tail) {
    std::vector<std::string_view> pieces;
    for (size_t start = 0;;) {
        const size_t sep = tail.find(kFieldSeparator, start);
        pieces.push_back(tail.substr(start, sep - start));
        if (sep == std::string_view::npos)
            return pieces;
        start = sep + 1;
    }
}

bool IsDecimal(std::string_view text) {
    const size_t point = text.find('.');
    auto digits = [](std::string_view part) {
        return std::all_of(part.begin(), part.end(), [](char c) { return c >= '0' && c <= '9'; });
    };
    return !text.empty() && point != 0 && digits(text.substr(0, point)) &&
           (point == std::string_view::npos || digits(text.substr(point + 1)));
}

std::string FieldText(std::string_view value, int field, const LoadedSettings& settings) {
    switch (field) {
        case 2:
            return IsDecimal(value) ? ValueDisplayText(value, 2, settings)
                                    : std::string(LTrim(value));
        case 15:
            if (NumericValue(value) == 0)
                return {};
            return settings.viewRenumbering ? FormatTrack(value, settings.renumberingLevel)
                                            : std::string(value);
        default:
            return ValueDisplayText(value, field, settings);
    }
}

}  // namespace

std::array<std::string, kResultColumnCount> ResultRowTexts(std::string_view tail,
                                                           const LoadedSettings& settings) {
    std::array<std::string, kResultColumnCount> texts;
    texts[1] = kNotResolvedYet;
    const std::vector<std::string_view> pieces = TailPieces(tail);
    const int last = std::min(static_cast<int>(pieces.size()) - 1, kEntryFieldCount);
    for (int field = 1; field <= last; ++field) {
        // Field 1 is column 1; field n from 2 on is column n+1.
        texts[field == 1 ? 0 : field] =
            field == 1 ? std::string(pieces[1]) : FieldText(pieces[field], field, settings);
    }
    return texts;
}

int ResultRowIcon(std::string_view tail, const LoadedSettings& settings) {
    const std::vector<std::string_view> pieces = TailPieces(tail);
    auto piece = [&](size_t n) { return n < pieces.size() ? pieces[n] : std::string_view(); };
    return IconFromContentType(piece(1), piece(8), settings).icon;
}

std::string ResultRowTag(std::string_view folderId, std::string_view tail) {
    std::string tag(folderId);
    tag += tail;
    return tag;
}

std::vector<std::string> ResultColumnTitles() {
    std::vector<std::string> titles(kListColumnTitles.begin(), kListColumnTitles.end());
    titles.insert(titles.begin() + 1, kFolderColumnTitle);
    return titles;
}

std::vector<std::string> SearchFieldChoices() {
    std::vector<std::string> choices{kAnythingField};
    choices.insert(choices.end(), kListColumnTitles.begin(), kListColumnTitles.end());
    return choices;
}

}  // namespace zvx
