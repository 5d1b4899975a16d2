#pragma once
// Whether a new search takes an entry line: the field test of the filter loop, with the
// consequences of its order.
//   - A chosen field F (1 to 22) is the F-th piece of the line behind its first nine
//     characters, split at the byte 01; a line with fewer pieces repeats its last one.
//     "Exact Phrase" tests its word, "Any Words" takes a line when one word hits, "All
//     Words" when every word does.
//   - The scan (field 0, "<ANYTHING>") looks at pieces 1 to 19 only. "Exact Phrase" hits
//     when one of them does. With several words, every word but the last is tested
//     against piece 1 (the name) alone and only the last against all 19: "Any Words"
//     takes the line when a word hits so, "All Words" when all do. "Does Not Contain"
//     hits at the first piece without the word, so it takes practically every line.
// The eight comparisons: 1 "Contains" (an empty word is in every field), 2 "Does Not
// Contain", 3 "Is", 4 "Is NOT", 5 to 8 the numeric ones on the leading-number values.
// Texts are read by the code-page rule (valid UTF-8 as UTF-8, any other as Windows-1252)
// and, without the case flag, compared lower-cased by the program's letters. No word at
// all takes no line.

#include <string>
#include <string_view>
#include <vector>

#include "finding/search_filter.h"

namespace zvx {

class SearchLineTest {
  public:
    SearchLineTest(const SearchSettings& settings, const std::vector<std::string>& words);

    // The line without its terminator.
    bool matches(std::string_view line) const;

    bool noWords() const { return words_.empty(); }

    // A text that every line the search takes holds somewhere (ASCII letters in either
    // case when foldsCase()), so that lines without it need no test; empty when there is
    // no such text.
    const std::string& requiredText() const { return required_; }
    bool foldsCase() const { return !caseSensitive_; }
    // Whether an occurrence of requiredText() decides a line by its place alone
    // (occurrenceCounts), as for one ASCII word that "Contains" looks for.
    bool decidedByOccurrence() const { return byOccurrence_; }
    // Whether the occurrence at `at` lies in the field the test looks at: in a scan one of
    // the pieces 1 to 19, else piece F or the last piece before it.
    bool occurrenceCounts(std::string_view line, size_t at) const;

  private:
    struct Word {
        std::string text;  // the word in UTF-8, lower-cased without the case flag
        bool ascii;
        double number;
    };

    bool hit(std::string_view field, const Word& word) const;
    bool contains(std::string_view field, const Word& word) const;
    bool equals(std::string_view field, const Word& word) const;
    bool scanHits(std::string_view rest, const Word& word) const;
    void chooseRequiredText();

    std::vector<Word> words_;
    int field_;
    int comparison_;
    WordMode mode_;
    bool caseSensitive_;
    std::string required_;
    bool byOccurrence_ = false;
};

}  // namespace zvx
