#pragma once
// The selection summary on the status bar's first panel (summarize): how many entries
// the list shows or how many of them are selected, and their total size.

#include <string>
#include <string_view>

namespace zvx {

// The counts and sizes of a list's rows, gathered row by row.
struct SelectionTotals {
    long long rows = 0;
    long long selectedRows = 0;
    double size = 0;
    double selectedSize = 0;

    // One row with the text of its size column (its numeric value counts).
    void add(std::string_view sizeText, bool selected);
};

// "1 entry" or "N entries", or with selected rows "K of N entries selected"; then the
// size of the selected rows, or of all rows when none is selected, as " (" SizeText
// ")" when that size is above 0.
std::string summarize(const SelectionTotals& totals);

// A size in bytes as the summary shows it: up to 1024 "N B", otherwise in " KB",
// " MB" or " GB", each step divided by 1024 with two decimals cut, not rounded.
std::string SizeText(double bytes);

}  // namespace zvx
