#include "metadata/genres.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace zvx {
namespace {

TEST(Genres, TableKeepsItsSpellingsAndGaps) {
    const std::pair<const char*, const char*> names[] = {
        {"0", "Blues"},       {"81", "Folk/Rock"},       {"118", "Rhythmic Soul"},
        {"120", "Duet"},      {"123", "A Capella"},      {"136", "Christian Gansta"},
        {"139", "Crossover"}, {"141", "Christian Rock"}, {"144", "Trash Metal"}};
    for (auto [tag, name] : names)
        EXPECT_EQ(GenreNameFromTag(tag), name) << tag;

    // The choices leave the gaps out.
    const auto choices = GenreChoices();
    ASSERT_EQ(choices.size(), 143u);
    EXPECT_EQ(choices[119], "Duet");
    EXPECT_EQ(choices[139], "Christian Rock");
    EXPECT_EQ(choices.back(), "Trash Metal");
}

TEST(GenreNameFromTag, UnknownNonNumericAndOutOfRange) {
    EXPECT_EQ(GenreNameFromTag(""), "<unknown>");
    EXPECT_EQ(GenreNameFromTag("<unknown>"), "<unknown>");
    // A text without a leading number counts as 0.
    EXPECT_EQ(GenreNameFromTag("abc"), "Blues");
    EXPECT_EQ(GenreNameFromTag(" 13 (Pop)"), "Pop");
    // Numbers without a genre give an empty text, not "<unknown>".
    EXPECT_EQ(GenreNameFromTag("119"), "");
    EXPECT_EQ(GenreNameFromTag("140"), "");
    EXPECT_EQ(GenreNameFromTag("145"), "");
    EXPECT_EQ(GenreNameFromTag("-1"), "");
    EXPECT_EQ(GenreNameFromTag("1.5"), "");
    EXPECT_EQ(GenreNameFromTag("1e9"), "");
}

TEST(GenreDisplayName, ZeroAndGapsReadUnknown) {
    EXPECT_EQ(GenreDisplayName(0), "<unknown>");
    EXPECT_EQ(GenreDisplayName(119), "<unknown>");
    EXPECT_EQ(GenreDisplayName(145), "<unknown>");
    EXPECT_EQ(GenreDisplayName(-3), "<unknown>");
    EXPECT_EQ(GenreDisplayName(1), "Classic Rock");
    EXPECT_EQ(GenreDisplayName(144), "Trash Metal");
}

}  // namespace
}  // namespace zvx
