#include "document/editor_form.h"

#include <algorithm>
#include <cmath>

#include "common/field_text.h"
#include "common/numeric_value.h"
#include "common/text_case.h"
#include "store/catalogue_format.h"
#include "store/date_normaliser.h"
#include "store/entry_line.h"
#include "store/track_format.h"

namespace zvx {

namespace {

// The most whole digits a size may have to be shown in groups: a double holds them
// exactly.
constexpr size_t kMaxGroupedDigits = 15;

// Digits with an optional fraction; false for any other text.
bool IsDecimalNumber(std::string_view text) {
    const size_t point = text.find('.');
    const std::string_view whole = text.substr(0, point);
    const std::string_view fraction =
        point == std::string_view::npos ? std::string_view() : text.substr(point + 1);
    auto digits = [](std::string_view part) {
        return std::ranges::all_of(part, [](char c) { return c >= '0' && c <= '9'; });
    };
    return !whole.empty() && whole.size() <= kMaxGroupedDigits && digits(whole) && digits(fraction);
}

// The size formatted with "### ### ### ### ###" and left-trimmed: the number rounded to
// a whole one in groups of three, no leading zeros, nothing at all for 0. A text that is
// no number is shown as it stands.
std::string SizeDisplay(std::string_view value) {
    if (!IsDecimalNumber(value))
        return std::string(value);
    const long long number = std::llround(NumericValue(value));
    const std::string digits = number == 0 ? std::string() : std::to_string(number);
    std::string grouped;
    for (size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0)
            grouped += ' ';
        grouped += digits[i];
    }
    return grouped;
}

// What the field's control shows for a non-empty stored value.
std::string DisplayForm(int field, std::string_view value, int renumberingLevel) {
    const bool unknown = value == "0";
    switch (field) {
        case 2:
            return SizeDisplay(value);
        case 5:
            return value == "1" ? "Read-only: Yes" : "Read-only: No";
        case 7:
            return NormaliseDate(value);
        case 15:
            return FormatTrack(value, renumberingLevel);
        case 19:
        case 22:
            return unknown ? "n/a" : std::string(value);
        case 20:
            return unknown ? "n/a" : std::string(value) + " kbps";
        case 21:
            return unknown ? "n/a" : std::string(value) + " hz";
        default:
            return std::string(value);
    }
}

bool Locked(const EditorForm& form, int field) {
    return HasLock(field) && form.locks[static_cast<size_t>(field)];
}

void ClearField(EditorForm& form, int field) {
    if (!Locked(form, field))
        form.texts[static_cast<size_t>(field)] = EmptyFormValue(field);
}

}  // namespace

bool HasLock(int field) {
    switch (field) {
        case 6:
        case 8:
        case 9:
        case 10:
        case 11:
        case 12:
        case 13:
        case 14:
        case 16:
        case 17:
        case 18:
            return true;
        default:
            return false;
    }
}

std::string EmptyFormValue(int field) {
    switch (field) {
        case 2:
            return "0";
        case 5:
            return "Read-only: n/a";
        case 6:
        case 12:
            return "<unknown>";
        case 15:
            return "00";
        default:
            return "";
    }
}

void ClearForm(EditorForm& form) {
    for (int field = 1; field <= kEntryFieldCount; ++field)
        ClearField(form, field);
}

void FillForm(EditorForm& form, std::string_view line, int renumberingLevel) {
    const EntryFields fields = SplitEntryLine(line);
    for (int field = 1; field <= kEntryFieldCount; ++field) {
        const std::string_view value = fields[static_cast<size_t>(field)];
        if (value.empty())
            ClearField(form, field);
        else if (!Locked(form, field))
            form.texts[static_cast<size_t>(field)] = DisplayForm(field, value, renumberingLevel);
    }
}

bool AudioFieldsEnabled(std::string_view fileType) {
    return fileType.empty() || fileType.starts_with("Audio:");
}

std::string YearCheck(std::string_view text) {
    const double value = NumericValue(text);
    if (value != std::floor(value))
        return "2000";
    const std::string number = NumberText(value);
    switch (Characters(text).size()) {
        case 4:
            return value >= 1000 && value <= 2999 ? std::string(text) : "2000";
        case 2:
            if (value >= 0 && value <= 99)
                return (value < 30 ? "20" : "19") + std::string(Right("00" + number, 2));
            return "2000";
        case 1:
            if (value >= 0 && value <= 9)
                return (value < 4 ? "200" : "199") + number;
            return "2000";
        default:
            return "2000";
    }
}

}  // namespace zvx
