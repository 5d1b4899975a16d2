#include "common/summary_text.h"

#include <array>
#include <cmath>

#include "common/numeric_value.h"

namespace zvx {

namespace {

constexpr double kUnitStep = 1024;

// The value divided by 1024 with two decimals, the rest cut off.
double NextUnit(double value) {
    return std::floor(value / 10.24) / 100;
}

}  // namespace

void SelectionTotals::add(std::string_view sizeText, bool selected) {
    const double value = NumericValue(sizeText);
    ++rows;
    size += value;
    if (selected) {
        ++selectedRows;
        selectedSize += value;
    }
}

std::string SizeText(double bytes) {
    constexpr std::array kUnits{" B", " KB", " MB"};
    double value = bytes;
    for (const char* unit : kUnits) {
        if (value <= kUnitStep)
            return NumberText(value) + unit;
        value = NextUnit(value);
    }
    return NumberText(value) + " GB";
}

std::string summarize(const SelectionTotals& totals) {
    std::string text = std::to_string(totals.rows) + (totals.rows == 1 ? " entry" : " entries");
    double size = totals.size;
    if (totals.selectedRows > 0) {
        text = std::to_string(totals.selectedRows) + " of " + text + " selected";
        size = totals.selectedSize;
    }
    if (size > 0)
        text += " (" + SizeText(size) + ")";
    return text;
}

}  // namespace zvx
