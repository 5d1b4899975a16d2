#pragma once
// Finding a short text in a large range of bytes, as fast as a sequential search can: a
// whole mapped entry section is searched at once, sixteen places a step, and only places
// whose first and last bytes fit are compared in full.

#include <cstddef>
#include <string>
#include <string_view>

namespace zvx {

class NeedleFinder {
  public:
    // `needle` must not be empty. With `foldCase` the ASCII letters match either case;
    // every other byte matches only itself.
    NeedleFinder(std::string_view needle, bool foldCase);

    // The position of the first occurrence that begins at or behind `from`, or npos.
    size_t find(std::string_view haystack, size_t from) const;

    size_t size() const { return needle_.size(); }

  private:
    bool matchesAt(const char* place) const;

    std::string needle_;  // lower-cased when folding
    bool fold_;
};

// ASCII case folding, which leaves every other byte alone.
inline char AsciiLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

}  // namespace zvx
