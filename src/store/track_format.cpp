#include "store/track_format.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "common/field_text.h"
#include "common/numeric_value.h"

namespace zvx {

std::string FormatTrack(std::string_view text, int renumberingLevel) {
    double value = NumericValue(text);
    // Formatting rounds half away from zero.
    double rounded = std::round(std::fabs(value));
    size_t digits = static_cast<size_t>(std::clamp(renumberingLevel, 0, 3)) + 1;
    std::string number =
        rounded < 1e18 ? std::to_string(static_cast<long long>(rounded)) : NumberText(rounded);
    if (number.size() < digits)
        number.insert(0, digits - number.size(), '0');
    if (value < 0 && rounded != 0)
        number = "-" + number;
    return std::string(LTrim(number));
}

}  // namespace zvx
