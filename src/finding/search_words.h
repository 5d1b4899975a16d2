#pragma once
// The words of a search text, and the fatal overflow of a search.

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

namespace zvx {

// The word modes of the search window's Combo4, in list order.
enum class WordMode { ExactPhrase, AnyWords, AllWords };

// A search holds at most this many words.
inline constexpr size_t kSearchWordSlots = 25;

// A search that outgrows its fixed tables: more than 25 words in the text, or more than
// 64,001 folders in the selected sub-tree. It ends the process with its message (the
// window through its fatal path, zvxcat with exit status 3); nothing is cut silently.
class SearchOverflow : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// Wordsplitter: the words of `text`.
//   ExactPhrase: one word, the whole text without its double quotes (spaces kept); the
//                text itself is rewritten to that word.
//   AnyWords, AllWords: words end at spaces, except inside double quotes; a quote is
//                dropped and the word goes on (ab"c d"e is one word "abc de"); empty
//                words are not stored; an unclosed quote loses the word it holds.
// Throws SearchOverflow for more than 25 words.
std::vector<std::string> Wordsplitter(std::string& text, WordMode mode);

}  // namespace zvx
