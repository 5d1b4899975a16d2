#include "common/field_text.h"

namespace zvx {

std::string_view LTrim(std::string_view text) {
    size_t start = text.find_first_not_of(' ');
    return start == std::string_view::npos ? std::string_view() : text.substr(start);
}

std::string_view RTrim(std::string_view text) {
    size_t end = text.find_last_not_of(' ');
    return end == std::string_view::npos ? std::string_view() : text.substr(0, end + 1);
}

std::string_view Trim(std::string_view text) {
    return RTrim(LTrim(text));
}

std::string_view Right(std::string_view text, size_t n) {
    return n >= text.size() ? text : text.substr(text.size() - n);
}

std::string CleanFieldText(std::string_view text) {
    std::string out(text);
    for (char& c : out) {
        if (c == '\x01' || c == '\r' || c == '\n')
            c = ' ';
    }
    return out;
}

}  // namespace zvx
