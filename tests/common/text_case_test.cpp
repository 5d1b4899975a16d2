#include "common/text_case.h"

#include <gtest/gtest.h>

#include "common/field_text.h"

namespace zvx {
namespace {

TEST(TextCase, Utf8TextIsCasedByCharacterAndOtherTextAsWindows1252) {
    EXPECT_EQ(UpperCase("abc é ÿ š œ ž ß"), "ABC É Ÿ Š Œ Ž ß");
    EXPECT_EQ(LowerCase("ÀÉÎ Ÿ Š"), "àéî ÿ š");
    EXPECT_EQ(UpperCase("× ÷ 東京"), "× ÷ 東京");  // no case, left alone
    // Other text is Windows-1252: "café" and "ÿš" in its bytes are not valid UTF-8.
    EXPECT_EQ(UpperCase("caf\xE9"), "CAF\xC9");
    EXPECT_EQ(UpperCase("\xFF\x9A\x9C\x9E"), "\x9F\x8A\x8C\x8E");
    EXPECT_EQ(LowerCase("\x9F\x8A\xC0"), "\xFF\x9A\xE0");
}

TEST(TextCase, TextCompareIgnoresCase) {
    EXPECT_TRUE(TextEquals("FirstStart", "FIRSTSTART"));
    EXPECT_TRUE(TextEquals("Éclair", "éCLAIR"));
    EXPECT_FALSE(TextEquals("a", "ab"));
}

TEST(TextCase, CharactersKeepUtf8SequencesWhole) {
    EXPECT_EQ(Characters("aé").size(), 2u);
    EXPECT_EQ(Characters("a\xE9").size(), 2u);
    EXPECT_EQ(Characters("\xC3").size(), 1u);  // a cut sequence is one byte of 1252
}

TEST(FieldText, LineBreaksAndSeparatorsBecomeBlanks) {
    EXPECT_EQ(CleanFieldText("a\001b\rc\nd"), "a b c d");
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\ta "), "\ta");  // only blanks are trimmed
    EXPECT_EQ(Right("abc", 5), "abc");
}

}  // namespace
}  // namespace zvx
