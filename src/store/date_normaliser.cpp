#include "store/date_normaliser.h"

#include "common/field_text.h"
#include "common/numeric_value.h"

namespace zvx {

namespace {

// "DD.MM.YYYY": the texts before the first and second "." and the trimmed rest. With
// a single "." the month is all behind it and the year is empty.
struct DayMonthYear {
    std::string_view day, month, year;
};

DayMonthYear SplitAtDots(std::string_view text) {
    size_t first = text.find('.');
    DayMonthYear parts{text.substr(0, first), {}, {}};
    std::string_view rest = text.substr(first + 1);
    size_t second = rest.find('.');
    if (second == std::string_view::npos) {
        parts.month = rest;
    } else {
        parts.month = rest.substr(0, second);
        parts.year = Trim(rest.substr(second + 1));
    }
    return parts;
}

}  // namespace

std::string NormaliseDate(std::string_view text) {
    std::string_view date = Trim(text);
    size_t colon = date.find(':');
    if (colon != std::string_view::npos) {
        // Position n (1-based) keeps n-3 characters: the time and its blank go.
        size_t keep = colon + 1 >= 3 ? colon + 1 - 3 : 0;
        date = Trim(date.substr(0, keep));
    }
    if (date.find('.') == std::string_view::npos)
        return std::string(date);
    DayMonthYear parts = SplitAtDots(date);
    std::string year(parts.year);
    if (year.size() == 2)
        year = (NumericValue(year) <= 29 ? "20" : "19") + year;
    return std::string(Right(parts.month, 2)) + "-" + std::string(Right(parts.day, 2)) + "-" +
           std::string(Right(year, 4));
}

}  // namespace zvx
