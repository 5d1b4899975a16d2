#include "common/text_case.h"

#include <cstdint>

namespace zvx {

namespace {

// Length of the UTF-8 sequence at the start of `text`, or 0 when it is not valid.
size_t Utf8SequenceLength(std::string_view text) {
    auto byte = [&](size_t i) { return static_cast<unsigned char>(text[i]); };
    unsigned char lead = byte(0);
    size_t length;
    uint32_t min;
    if (lead < 0x80)
        return 1;
    if ((lead & 0xE0) == 0xC0)
        length = 2, min = 0x80;
    else if ((lead & 0xF0) == 0xE0)
        length = 3, min = 0x800;
    else if ((lead & 0xF8) == 0xF0)
        length = 4, min = 0x10000;
    else
        return 0;
    if (text.size() < length)
        return 0;
    uint32_t cp = lead & (0x7F >> length);
    for (size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            return 0;
        cp = (cp << 6) | (byte(i) & 0x3F);
    }
    if (cp < min || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF))
        return 0;
    return length;
}

uint32_t DecodeUtf8(std::string_view ch) {
    auto byte = [&](size_t i) { return static_cast<unsigned char>(ch[i]); };
    if (ch.size() == 1)
        return byte(0);
    uint32_t cp = byte(0) & (0x7F >> ch.size());
    for (size_t i = 1; i < ch.size(); ++i)
        cp = (cp << 6) | (byte(i) & 0x3F);
    return cp;
}

// Pairs of (lower, upper) outside the plain ranges, as Unicode code points and as
// Windows-1252 bytes.
struct CasePair {
    uint32_t lowerCp, upperCp;
    unsigned char lowerByte, upperByte;
};
constexpr CasePair kSpecialPairs[] = {
    {0x0161, 0x0160, 0x9A, 0x8A},  // š Š
    {0x0153, 0x0152, 0x9C, 0x8C},  // œ Œ
    {0x017E, 0x017D, 0x9E, 0x8E},  // ž Ž
    {0x00FF, 0x0178, 0xFF, 0x9F},  // ÿ Ÿ
};

// à..þ without ÷ map to À..Þ without ×, in Latin-1 and in Windows-1252 alike.
bool IsLatinLower(uint32_t c) {
    return c >= 0xE0 && c <= 0xFE && c != 0xF7;
}
bool IsLatinUpper(uint32_t c) {
    return c >= 0xC0 && c <= 0xDE && c != 0xD7;
}

uint32_t UpperCode(uint32_t c, bool utf8) {
    if (c >= 'a' && c <= 'z')
        return c - 0x20;
    if (IsLatinLower(c))
        return c - 0x20;
    for (const auto& p : kSpecialPairs) {
        if (utf8 ? c == p.lowerCp : c == p.lowerByte)
            return utf8 ? p.upperCp : p.upperByte;
    }
    return c;
}

uint32_t LowerCode(uint32_t c, bool utf8) {
    if (c >= 'A' && c <= 'Z')
        return c + 0x20;
    if (IsLatinUpper(c))
        return c + 0x20;
    for (const auto& p : kSpecialPairs) {
        if (utf8 ? c == p.upperCp : c == p.upperByte)
            return utf8 ? p.lowerCp : p.lowerByte;
    }
    return c;
}

std::string MapChar(std::string_view ch, bool utf8, uint32_t (*map)(uint32_t, bool)) {
    if (ch.size() == 1 && static_cast<unsigned char>(ch[0]) < 0x80) {
        return std::string(1, static_cast<char>(map(static_cast<unsigned char>(ch[0]), utf8)));
    }
    if (!utf8)
        return std::string(1, static_cast<char>(map(static_cast<unsigned char>(ch[0]), false)));
    uint32_t cp = DecodeUtf8(ch);
    uint32_t mapped = map(cp, true);
    return mapped == cp ? std::string(ch) : EncodeUtf8(mapped);
}

std::string MapText(std::string_view text, uint32_t (*map)(uint32_t, bool)) {
    bool utf8 = IsValidUtf8(text);
    std::string out;
    out.reserve(text.size());
    for (std::string_view ch : Characters(text))
        out += MapChar(ch, utf8, map);
    return out;
}

}  // namespace

std::string EncodeUtf8(uint32_t cp) {
    std::string out;
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
    return out;
}

bool IsValidUtf8(std::string_view text) {
    for (size_t i = 0; i < text.size();) {
        size_t n = Utf8SequenceLength(text.substr(i));
        if (n == 0)
            return false;
        i += n;
    }
    return true;
}

std::vector<std::string_view> Characters(std::string_view text) {
    std::vector<std::string_view> out;
    out.reserve(text.size());
    bool utf8 = IsValidUtf8(text);
    for (size_t i = 0; i < text.size();) {
        size_t n = utf8 ? Utf8SequenceLength(text.substr(i)) : 1;
        out.push_back(text.substr(i, n));
        i += n;
    }
    return out;
}

std::string UpperChar(std::string_view ch, bool utf8) {
    return MapChar(ch, utf8, UpperCode);
}
std::string LowerChar(std::string_view ch, bool utf8) {
    return MapChar(ch, utf8, LowerCode);
}

std::string UpperCase(std::string_view text) {
    return MapText(text, UpperCode);
}
std::string LowerCase(std::string_view text) {
    return MapText(text, LowerCode);
}

bool TextEquals(std::string_view a, std::string_view b) {
    if (a.size() == b.size() && a == b)
        return true;
    return UpperCase(a) == UpperCase(b);
}

}  // namespace zvx
