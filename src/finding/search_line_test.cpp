#include "finding/search_line_test.h"

#include <algorithm>
#include <cstring>

#include "common/code_page.h"
#include "common/numeric_value.h"
#include "common/text_case.h"
#include "finding/needle_finder.h"
#include "store/catalogue_format.h"

namespace zvx {

namespace {

// The fields begin behind the eight characters of the folder ID and one more.
constexpr size_t kFieldsStart = kFolderIdLength + 1;
constexpr int kScanFieldCount = 19;

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// Takes the pieces of the fields one by one; the last one, with no separator behind it,
// comes again and again.
class Pieces {
  public:
    explicit Pieces(std::string_view rest) : rest_(rest) {}
    std::string_view next() {
        const size_t sep = rest_.find(kFieldSeparator);
        if (sep == std::string_view::npos) {
            last_ = true;
            return rest_;
        }
        std::string_view piece = rest_.substr(0, sep);
        rest_.remove_prefix(sep + 1);
        return piece;
    }
    // Whether the piece given last was the last one.
    bool atLast() const { return last_; }

  private:
    std::string_view rest_;
    bool last_ = false;
};

std::string_view Piece(std::string_view rest, int number) {
    Pieces pieces(rest);
    std::string_view piece;
    for (int n = 1; n <= number && !pieces.atLast(); ++n)
        piece = pieces.next();
    return piece;
}

std::string_view FieldsOf(std::string_view line) {
    return line.size() > kFieldsStart ? line.substr(kFieldsStart) : std::string_view();
}

// The longest run of ASCII bytes in the text.
std::string_view LongestAsciiRun(std::string_view text) {
    std::string_view best;
    for (size_t i = 0; i < text.size();) {
        size_t end = i;
        while (end < text.size() && static_cast<unsigned char>(text[end]) < 0x80)
            ++end;
        if (end - i > best.size())
            best = text.substr(i, end - i);
        i = end + 1;
    }
    return best;
}

}  // namespace

SearchLineTest::SearchLineTest(const SearchSettings& settings,
                               const std::vector<std::string>& words)
    : field_(settings.field),
      comparison_(settings.comparison),
      mode_(settings.mode),
      caseSensitive_(settings.caseSensitive) {
    for (const std::string& word : words) {
        std::string text = TextAsUtf8(word);
        if (!caseSensitive_)
            text = LowerCase(text);
        words_.push_back({std::move(text), IsAscii(word), NumericValue(word)});
    }
    chooseRequiredText();
}

void SearchLineTest::chooseRequiredText() {
    // Only a hit of "Contains" or "Is" puts the word's bytes into the line; "Any Words"
    // with several words needs none of them in particular.
    if ((comparison_ != 1 && comparison_ != 3) || words_.empty() ||
        (mode_ == WordMode::AnyWords && words_.size() > 1))
        return;
    for (const Word& word : words_) {
        std::string_view run = LongestAsciiRun(word.text);
        if (run.size() > required_.size())
            required_ = run;
    }
    const Word& only = words_.front();
    byOccurrence_ = comparison_ == 1 && words_.size() == 1 && only.ascii && !only.text.empty() &&
                    only.text.find_first_of("\x01\r\n") == std::string::npos;
}

bool SearchLineTest::contains(std::string_view field, const Word& word) const {
    if (word.text.empty())
        return true;
    if (word.ascii && caseSensitive_)
        return field.find(word.text) != std::string_view::npos;
    if (word.ascii) {
        return std::search(field.begin(), field.end(), word.text.begin(), word.text.end(),
                           [](char a, char b) { return AsciiLower(a) == b; }) != field.end();
    }
    const std::string text = caseSensitive_ ? TextAsUtf8(field) : LowerCase(TextAsUtf8(field));
    return text.find(word.text) != std::string::npos;
}

bool SearchLineTest::equals(std::string_view field, const Word& word) const {
    if (word.ascii && caseSensitive_)
        return field == word.text;
    if (word.ascii) {
        return std::equal(field.begin(), field.end(), word.text.begin(), word.text.end(),
                          [](char a, char b) { return AsciiLower(a) == b; });
    }
    return (caseSensitive_ ? TextAsUtf8(field) : LowerCase(TextAsUtf8(field))) == word.text;
}

bool SearchLineTest::hit(std::string_view field, const Word& word) const {
    switch (comparison_) {
        case 1:
            return contains(field, word);
        case 2:
            return !contains(field, word);
        case 3:
            return equals(field, word);
        case 4:
            return !equals(field, word);
        case 5:
            return NumericValue(field) > word.number;
        case 6:
            return NumericValue(field) >= word.number;
        case 7:
            return NumericValue(field) < word.number;
        case 8:
            return NumericValue(field) <= word.number;
        default:
            return false;
    }
}

bool SearchLineTest::scanHits(std::string_view rest, const Word& word) const {
    Pieces pieces(rest);
    // Behind the last piece the same text comes again; one test of it tells.
    for (int n = 1; n <= kScanFieldCount && !pieces.atLast(); ++n) {
        if (hit(pieces.next(), word))
            return true;
    }
    return false;
}

bool SearchLineTest::matches(std::string_view line) const {
    if (words_.empty())
        return false;
    const std::string_view rest = FieldsOf(line);
    auto hitsIn = [&](std::string_view field) {
        return [this, field](const Word& word) { return hit(field, word); };
    };
    if (field_ != 0) {
        const std::string_view field = Piece(rest, field_);
        return mode_ == WordMode::AllWords
                   ? std::all_of(words_.begin(), words_.end(), hitsIn(field))
                   : std::any_of(words_.begin(), words_.end(), hitsIn(field));
    }
    const Word& lastWord = words_.back();
    const std::string_view name = Piece(rest, 1);
    const auto others = words_.end() - 1;
    if (mode_ == WordMode::AllWords)
        return std::all_of(words_.begin(), others, hitsIn(name)) && scanHits(rest, lastWord);
    return std::any_of(words_.begin(), others, hitsIn(name)) || scanHits(rest, lastWord);
}

bool SearchLineTest::occurrenceCounts(std::string_view line, size_t at) const {
    if (at < kFieldsStart)
        return false;
    const int limit = field_ == 0 ? kScanFieldCount : field_;
    int piece = 1;
    for (size_t i = kFieldsStart; i < at && piece <= limit; ++i)
        piece += line[i] == kFieldSeparator;
    if (field_ == 0)
        return piece <= kScanFieldCount;
    if (piece >= field_)
        return piece == field_;
    // A piece before F counts only as the last piece, which stands for F.
    const std::string_view behind = line.substr(at + required_.size());
    return behind.find(kFieldSeparator) == std::string_view::npos;
}

}  // namespace zvx
