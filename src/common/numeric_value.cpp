#include "common/numeric_value.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace zvx {

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// "&H1F" and "&O17": whole numbers in base 16 or 8.
double RadixValue(std::string_view text, size_t pos, int base) {
    double value = 0;
    for (; pos < text.size(); ++pos) {
        char c = text[pos];
        if (IsBlank(c))
            continue;
        int digit = -1;
        if (IsDigit(c))
            digit = c - '0';
        else if (base == 16 && c >= 'a' && c <= 'f')
            digit = c - 'a' + 10;
        else if (base == 16 && c >= 'A' && c <= 'F')
            digit = c - 'A' + 10;
        if (digit < 0 || digit >= base)
            break;
        value = value * base + digit;
    }
    return value;
}

}  // namespace

double NumericValue(std::string_view text) {
    size_t pos = 0;
    while (pos < text.size() && IsBlank(text[pos]))
        ++pos;
    if (pos + 1 < text.size() && text[pos] == '&') {
        char r = text[pos + 1];
        if (r == 'h' || r == 'H')
            return RadixValue(text, pos + 2, 16);
        if (r == 'o' || r == 'O')
            return RadixValue(text, pos + 2, 8);
    }
    // Collect the number without its blanks, then let strtod read it.
    std::string number;
    bool digits = false, point = false;
    for (; pos < text.size(); ++pos) {
        char c = text[pos];
        if (IsBlank(c))
            continue;
        if (IsDigit(c)) {
            digits = true;
        } else if (c == '.' && !point) {
            point = true;
        } else if ((c == '+' || c == '-') && number.empty()) {
        } else {
            break;
        }
        number += c;
    }
    if (!digits)
        return 0;
    // An exponent counts only when digits follow it.
    if (pos < text.size() &&
        (text[pos] == 'e' || text[pos] == 'E' || text[pos] == 'd' || text[pos] == 'D')) {
        std::string exponent = "e";
        size_t p = pos + 1;
        while (p < text.size() && IsBlank(text[p]))
            ++p;
        if (p < text.size() && (text[p] == '+' || text[p] == '-'))
            exponent += text[p++];
        bool expDigits = false;
        for (; p < text.size(); ++p) {
            if (IsBlank(text[p]))
                continue;
            if (!IsDigit(text[p]))
                break;
            expDigits = true;
            exponent += text[p];
        }
        if (expDigits)
            number += exponent;
    }
    double value = std::strtod(number.c_str(), nullptr);
    return std::isfinite(value) ? value : 0;
}

std::string NumberText(double value) {
    if (value == 0)
        return "0";
    if (std::fabs(value) < 1e15 && value == std::floor(value)) {
        return std::to_string(static_cast<long long>(value));
    }
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.15G", value);
    std::string text = buffer;
    // Drop trailing zeros of the fraction, and the zero ahead of the point.
    size_t e = text.find('E');
    std::string mantissa = text.substr(0, e),
                exponent = e == std::string::npos ? "" : text.substr(e);
    if (mantissa.find('.') != std::string::npos) {
        while (mantissa.back() == '0')
            mantissa.pop_back();
        if (mantissa.back() == '.')
            mantissa.pop_back();
    }
    if (mantissa.rfind("0.", 0) == 0)
        mantissa.erase(0, 1);
    if (mantissa.rfind("-0.", 0) == 0)
        mantissa.erase(1, 1);
    if (!exponent.empty()) {
        // "E+05" is written "E+5"
        std::string sign = exponent.substr(1, 1);
        std::string digits = exponent.substr(2);
        while (digits.size() > 1 && digits[0] == '0')
            digits.erase(0, 1);
        exponent = "E" + sign + digits;
    }
    return mantissa + exponent;
}

long long RoundHalfEven(double value) {
    return static_cast<long long>(std::nearbyint(value));
}

}  // namespace zvx
