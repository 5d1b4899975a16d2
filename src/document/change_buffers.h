#pragma once
// The editor's change buffers (buffer_old and buffer_new): for each entry line of the
// working copy that an edit changed, the line that is to replace it. The final apply
// writes them in one pass when the editor is left.
//
// An old line enters only when it is not there yet, so no line stands twice: the first
// hit and the last match of a search are the same pair, and the pairs' order tells
// nothing. They are therefore kept by a hash of the old line, so that a lookup costs
// the same with ten pairs or with a million. Two identical lines of a file are one key:
// an edit of either changes the first of them that the final apply meets.

#include <bitset>
#include <string>
#include <string_view>
#include <unordered_map>

namespace zvx {

class ChangeBuffers {
  public:
    size_t size() const { return pairs_.size(); }
    bool empty() const { return pairs_.empty(); }

    // An edit of the row whose line in the working copy is `oldLine`: a new line that
    // differs from the old replaces the pair's new line or becomes a new pair; one
    // equal to the old removes the pair, as the row is back to what the file holds.
    void record(std::string_view oldLine, std::string newLine);
    // The line that is to replace `oldLine`, or null.
    const std::string* newLineFor(std::string_view oldLine) const;
    bool contains(std::string_view oldLine) const { return newLineFor(oldLine) != nullptr; }
    // The final apply's lookup for a line of the file: at a pair, gives its new line and
    // removes the pair, so a second identical line of the file stays as it is.
    bool take(std::string_view fileLine, std::string& newLine);
    void clear();

  private:
    // Whether a line may be an old line, told by its first eight bytes (its folder ID)
    // alone: most lines of a file pass without being hashed whole. A slot stays marked
    // when its pairs leave, which costs only a full lookup.
    static size_t PrefixSlot(std::string_view line);
    bool mayHold(std::string_view line) const { return prefixes_.test(PrefixSlot(line)); }

    static constexpr size_t kPrefixSlots = size_t(1) << 16;
    std::bitset<kPrefixSlots> prefixes_;
    struct Hash {
        using is_transparent = void;
        size_t operator()(std::string_view text) const {
            return std::hash<std::string_view>{}(text);
        }
    };
    std::unordered_map<std::string, std::string, Hash, std::equal_to<>> pairs_;
};

}  // namespace zvx
