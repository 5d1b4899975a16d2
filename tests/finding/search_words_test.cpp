#include <gtest/gtest.h>

#include "finding/search_words.h"

namespace zvx {
namespace {

using Words = std::vector<std::string>;

TEST(Wordsplitter, QuotesProtectSpacesInAnyAndAllWords) {
    const struct {
        std::string text;
        Words words;
    } cases[] = {
        {"\"a b\" c", {"a b", "c"}},
        {"ab\"c d\"e", {"abc de"}},  // the word goes on behind the closing quote
        {"  a   b ", {"a", "b"}},    // empty words are not stored
        {"a \"b c", {"a"}},          // an unclosed quote loses its word
        {"\"\"", {}},
        {"", {}},
    };
    for (const auto& c : cases) {
        for (WordMode mode : {WordMode::AnyWords, WordMode::AllWords}) {
            std::string text = c.text;
            EXPECT_EQ(Wordsplitter(text, mode), c.words) << c.text;
            EXPECT_EQ(text, c.text) << "only the exact phrase rewrites its text";
        }
    }
}

TEST(Wordsplitter, ExactPhraseIsTheWholeTextWithoutQuotes) {
    std::string text = "\"a b\"  c\"";
    EXPECT_EQ(Wordsplitter(text, WordMode::ExactPhrase), Words{"a b  c"});
    EXPECT_EQ(text, "a b  c");
    std::string empty;
    EXPECT_EQ(Wordsplitter(empty, WordMode::ExactPhrase), Words{""});
}

TEST(Wordsplitter, MoreThanTwentyFiveWordsIsFatal) {
    std::string text;
    for (int i = 0; i < 25; ++i)
        text += "w" + std::to_string(i) + " ";
    std::string twentyFive = text + "\"lost";
    EXPECT_EQ(Wordsplitter(twentyFive, WordMode::AnyWords).size(), 25u);
    std::string twentySix = text + "one-more";
    EXPECT_THROW(Wordsplitter(twentySix, WordMode::AllWords), SearchOverflow);
    EXPECT_NO_THROW(Wordsplitter(twentySix, WordMode::ExactPhrase));
}

}  // namespace
}  // namespace zvx
