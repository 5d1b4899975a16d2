#include "common/code_page.h"

#include "common/text_case.h"

namespace zvx {

namespace {

// Windows-1252 at 0x80..0x9F; the bytes it leaves undefined keep their Latin-1 value.
constexpr char16_t kCp1252High[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

std::string TextAsUtf8(std::string_view text) {
    return IsValidUtf8(text) ? std::string(text) : Windows1252AsUtf8(text);
}

std::string Windows1252AsUtf8(std::string_view text) {
    std::string out;
    out.reserve(text.size() * 2);
    for (char c : text) {
        auto byte = static_cast<unsigned char>(c);
        out += EncodeUtf8(byte >= 0x80 && byte < 0xA0 ? kCp1252High[byte - 0x80] : byte);
    }
    return out;
}

}  // namespace zvx
