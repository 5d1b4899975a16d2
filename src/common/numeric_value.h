#pragma once
// The numeric value of a text, the one rule every part of the program uses to read a
// number out of text: blanks are skipped, the longest leading number counts (sign,
// digits, one decimal point, an exponent "E" or "D", or a "&H"/"&O" prefix), and a
// text without a leading number is 0. "3ab" is 3, "1 2" is 12, "1e3" is 1000.

#include <string>
#include <string_view>

namespace zvx {

double NumericValue(std::string_view text);

// The decimal text of a number as the program writes it: integers without a decimal
// point, others with up to 15 significant digits and no leading zero ("0.5" is
// ".5"), a leading "-" for negatives and no blank.
std::string NumberText(double value);

// Rounds half to even, as every conversion of a number to an integer does.
long long RoundHalfEven(double value);

}  // namespace zvx
