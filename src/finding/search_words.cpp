#include "finding/search_words.h"

#include <algorithm>

namespace zvx {

namespace {

void StoreWord(std::vector<std::string>& words, std::string& word) {
    if (word.empty())
        return;
    if (words.size() == kSearchWordSlots)
        throw SearchOverflow("The search text holds more than 25 words.");
    words.push_back(std::move(word));
    word.clear();
}

}  // namespace

std::vector<std::string> Wordsplitter(std::string& text, WordMode mode) {
    if (mode == WordMode::ExactPhrase) {
        std::erase(text, '"');
        return {text};
    }
    std::vector<std::string> words;
    std::string word;
    bool quoted = false;
    // The text end counts as the space that stores the last word; inside quotes it
    // stores nothing.
    for (char c : text + ' ') {
        if (c == '"')
            quoted = !quoted;
        else if (c == ' ' && !quoted)
            StoreWord(words, word);
        else
            word += c;
    }
    return words;
}

}  // namespace zvx
