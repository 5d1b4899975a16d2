#include "finding/needle_finder.h"

#include <algorithm>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace zvx {

namespace {

bool IsAsciiLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

}  // namespace

NeedleFinder::NeedleFinder(std::string_view needle, bool foldCase)
    : needle_(needle), fold_(foldCase) {
    if (fold_)
        std::transform(needle_.begin(), needle_.end(), needle_.begin(), AsciiLower);
}

bool NeedleFinder::matchesAt(const char* place) const {
    if (!fold_)
        return std::memcmp(place, needle_.data(), needle_.size()) == 0;
    for (size_t i = 0; i < needle_.size(); ++i) {
        if (AsciiLower(place[i]) != needle_[i])
            return false;
    }
    return true;
}

size_t NeedleFinder::find(std::string_view haystack, size_t from) const {
    const size_t m = needle_.size();
    if (haystack.size() < m || from > haystack.size() - m)
        return std::string_view::npos;
    const char* h = haystack.data();
    const size_t last = haystack.size() - m;  // the last place an occurrence can begin
    size_t i = from;
#if defined(__SSE2__)
    // A letter is compared with the 0x20 bit set on both sides, which makes the upper
    // and the lower case one and no other byte equal to the letter.
    auto foldBit = [&](char c) { return _mm_set1_epi8(fold_ && IsAsciiLetter(c) ? 0x20 : 0); };
    const __m128i first = _mm_set1_epi8(needle_.front());
    const __m128i back = _mm_set1_epi8(needle_.back());
    const __m128i firstFold = foldBit(needle_.front());
    const __m128i backFold = foldBit(needle_.back());
    for (; i <= last && last - i >= 15; i += 16) {
        const __m128i a =
            _mm_or_si128(_mm_loadu_si128(reinterpret_cast<const __m128i*>(h + i)), firstFold);
        const __m128i b = _mm_or_si128(
            _mm_loadu_si128(reinterpret_cast<const __m128i*>(h + i + m - 1)), backFold);
        unsigned mask = static_cast<unsigned>(
            _mm_movemask_epi8(_mm_and_si128(_mm_cmpeq_epi8(a, first), _mm_cmpeq_epi8(b, back))));
        while (mask != 0) {
            const size_t at = i + static_cast<size_t>(__builtin_ctz(mask));
            if (matchesAt(h + at))
                return at;
            mask &= mask - 1;
        }
    }
#endif
    for (; i <= last; ++i) {
        if (matchesAt(h + i))
            return i;
    }
    return std::string_view::npos;
}

}  // namespace zvx
