#include "document/entry_rows.h"

#include <algorithm>

#include "common/numeric_value.h"
#include "metadata/content_icon.h"
#include "store/catalogue_format.h"
#include "store/track_format.h"

namespace zvx {

namespace {

constexpr size_t kRowBlockSize = size_t(4) << 20;

bool AllDigits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// Adds 1 to a text of decimal digits.
std::string Increment(std::string digits) {
    for (size_t i = digits.size(); i-- > 0;) {
        if (digits[i] != '9') {
            ++digits[i];
            return digits;
        }
        digits[i] = '0';
    }
    return "1" + digits;
}

// Digits with an optional fraction, rounded half away from zero to whole digits; false
// for any other text.
bool WholeDigits(std::string_view text, std::string& digits) {
    size_t point = text.find('.');
    std::string_view whole = text.substr(0, point);
    std::string_view fraction = point == std::string_view::npos ? "" : text.substr(point + 1);
    if (!AllDigits(whole) || !AllDigits(fraction))
        return false;
    whole.remove_prefix(std::min(whole.find_first_not_of('0'), whole.size()));
    digits = whole;
    if (!fraction.empty() && fraction[0] >= '5')
        digits = Increment(digits);
    return true;
}

// Sizes are shown zero-padded in groups of three ("000 000 000 005") so that the list's
// text sort orders them as numbers; digits beyond twelve stand in front of the first
// group. A value that is no number is shown behind the padding zeros as it stands.
std::string SizeText(std::string_view value) {
    std::string padded = "000000000000" + std::string(value);
    std::string digits;
    if (!WholeDigits(padded, digits))
        return padded;
    if (digits.size() < 12)
        digits.insert(0, 12 - digits.size(), '0');
    const size_t lead = digits.size() - 9;
    return digits.substr(0, lead) + " " + digits.substr(lead, 3) + " " +
           digits.substr(lead + 3, 3) + " " + digits.substr(lead + 6, 3);
}

std::string TrackText(std::string_view value, const LoadedSettings& settings) {
    std::string track = settings.viewRenumbering ? FormatTrack(value, settings.renumberingLevel)
                                                 : std::string(value);
    return NumericValue(track) == 0 ? std::string() : track;
}

}  // namespace

std::string_view EntryItem(std::string_view line, int field) {
    if (field <= 0)
        return line.substr(0, kFolderIdLength);
    std::string_view rest = line.size() > kFolderIdLength ? line.substr(kFolderIdLength) : "";
    size_t sep = rest.find(kFieldSeparator);
    std::string_view last;
    for (int i = 1; i <= field && sep != std::string_view::npos; ++i) {
        rest.remove_prefix(sep + 1);
        sep = rest.find(kFieldSeparator);
        last = rest.substr(0, sep);
    }
    return last;
}

std::string ValueDisplayText(std::string_view value, int column, const LoadedSettings& settings) {
    switch (column) {
        case 2:
            return SizeText(value);
        case 5:
            return value == "1" ? "Yes" : "No";
        case 15:
            return TrackText(value, settings);
        case 16:
            return NumericValue(value) == 0 ? std::string() : std::string(value);
        case 19:
        case 20:
        case 21:
            return value == "0" ? "n/a" : std::string(value);
        case 22:
            return value.empty() ? "n/a" : std::string(value);
        default:
            return std::string(value);
    }
}

std::string DisplayText(std::string_view line, int column, const LoadedSettings& settings) {
    if (column == 8)
        return std::string(
            IconFromContentType(EntryItem(line, 1), EntryItem(line, 8), settings).contentType);
    return ValueDisplayText(EntryItem(line, column), column, settings);
}

int EntryIcon(std::string_view line, const LoadedSettings& settings) {
    return IconFromContentType(EntryItem(line, 1), EntryItem(line, 8), settings).icon;
}

EntryRow RealShowEntry(std::string_view line, const LoadedSettings& settings) {
    EntryRow row;
    for (int column = 1; column <= kListColumnCount; ++column)
        row.texts[column - 1] = DisplayText(line, column, settings);
    row.icon = EntryIcon(line, settings);
    row.Tag = line;
    return row;
}

void EntryRows::add(std::string_view line) {
    if (blocks_.empty() || blocks_.back().capacity() - blocks_.back().size() < line.size()) {
        blocks_.emplace_back();
        blocks_.back().reserve(std::max(kRowBlockSize, line.size()));
    }
    std::string& block = blocks_.back();
    rows_.push_back({static_cast<uint32_t>(blocks_.size() - 1), static_cast<uint32_t>(block.size()),
                     static_cast<uint32_t>(line.size())});
    block += line;
}

void EntryRows::clear() {
    blocks_.clear();
    rows_.clear();
}

std::string_view EntryRows::line(size_t row) const {
    const Place& place = rows_[row];
    return std::string_view(blocks_[place.block]).substr(place.offset, place.length);
}

}  // namespace zvx
