#include <gtest/gtest.h>

#include <random>

#include "common/code_page.h"
#include "common/numeric_value.h"
#include "common/text_case.h"
#include "finding/search_filter.h"
#include "platform/line_reader.h"
#include "store/entry_offset.h"
#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::CatalogueBytes;
using test::EntryLineOf;
using Lines = std::vector<std::string>;

struct FilterBench {
    test::TestEnvironment env;
    std::filesystem::path source = env.folder / "source.tmp";
    std::filesystem::path result = env.folder / "sresult.tmp";
    Lines tails;

    void write(const Lines& entries) {
        test::WriteAll(source, CatalogueBytes({{"Music\\", "", 10, "00000001"}}, entries));
    }
    // The lines the run appended to an empty result.
    Lines run(const SearchSettings& settings, bool removeMode = false) {
        test::WriteAll(result, "");
        tails.clear();
        const size_t count = SelFiltering(env.common, source, result, settings, removeMode,
                                          [&](std::string_view tail, std::string_view id) {
                                              tails.push_back(std::string(id) + std::string(tail));
                                          });
        Lines lines;
        LineReader reader(result);
        std::string_view line;
        while (reader.next(line))
            lines.emplace_back(line);
        EXPECT_EQ(count, lines.size());
        EXPECT_EQ(tails, lines) << "the rows are the lines of the result, in file order";
        return lines;
    }
};

SearchSettings Settings(int field, int comparison, WordMode mode, std::string text,
                        bool caseSensitive = false) {
    return {field, comparison, mode, caseSensitive, std::move(text)};
}

std::vector<std::string> Fields(std::initializer_list<std::pair<int, std::string>> values) {
    std::vector<std::string> fields(22);
    for (const auto& [field, value] : values)
        fields[field - 1] = value;
    return fields;
}

const std::string kBand =
    EntryLineOf("00000001", Fields({{1, "one.mp3"}, {10, "Rock Band"}, {16, "2"}, {22, "Stereo"}}));
const std::string kUpper = EntryLineOf("00000001", Fields({{1, "ABC"}, {16, "1"}}));
const std::string kShort =
    "00000001\x01short.mp3\x01"
    "12\x01"
    "c:\\x";
const std::string kAllX = [] {
    std::vector<std::string> fields(19, "x");
    fields.insert(fields.end(), {"y", "y", "y"});
    return EntryLineOf("00000001", fields);
}();
const std::string kWindows1252 = EntryLineOf("00000001", {"\xC9t\xE9.mp3"});
const std::string kTiny = "0000000";
const Lines kAll = {kBand, kUpper, kShort, kAllX, kWindows1252, kTiny};

TEST(SelFiltering, KeepsTheConsequencesOfTheLoopsOrder) {
    constexpr auto Exact = WordMode::ExactPhrase, Any = WordMode::AnyWords,
                   All = WordMode::AllWords;
    const struct {
        const char* what;
        SearchSettings settings;
        Lines taken;
    } cases[] = {
        {"the scan never reads Mode", Settings(0, 1, Exact, "stereo"), {}},
        {"Mode chosen", Settings(22, 1, Exact, "stereo"), {kBand}},
        {"Any Words: a first word counts in the name only", Settings(0, 1, Any, "rock zzz"), {}},
        {"Any Words: the last word is scanned", Settings(0, 1, Any, "zzz rock"), {kBand}},
        {"All Words: a first word missing from the name fails the line",
         Settings(0, 1, All, "rock one"),
         {}},
        {"All Words: the last word anywhere", Settings(0, 1, All, "one rock"), {kBand}},
        {"All Words in a chosen field", Settings(10, 1, All, "band rock"), {kBand}},
        {"Any Words in a chosen field", Settings(10, 1, Any, "zzz band"), {kBand}},
        {"Does Not Contain in a scan takes any line with one field without the word",
         Settings(0, 2, Exact, "x"),
         {kBand, kUpper, kShort, kWindows1252, kTiny}},
        {"a short line repeats its last piece", Settings(10, 3, Exact, "c:\\x"), {kShort}},
        {"numbers by their leading number", Settings(16, 5, Exact, "1k"), {kBand}},
        {"Is compares without case", Settings(1, 3, Exact, "abc"), {kUpper}},
        {"Is with the case flag", Settings(1, 3, Exact, "abc", true), {}},
        {"Windows-1252 text without case",
         Settings(0, 1, Exact, "\xC3\xA9t\xC3\xA9"),
         {kWindows1252}},
        {"Windows-1252 text with case",
         Settings(0, 1, Exact, "\xC3\x89t\xC3\xA9", true),
         {kWindows1252}},
        {"the case flag tells É from é", Settings(0, 1, Exact, "\xC3\xA9t\xC3\xA9", true), {}},
        {"an empty phrase is in every field", Settings(0, 1, Exact, "\"\""), kAll},
        {"no word takes no line", Settings(0, 2, Any, ""), {}},
    };
    FilterBench bench;
    bench.write(kAll);
    for (const auto& c : cases)
        EXPECT_EQ(bench.run(c.settings), c.taken) << c.what;
}

TEST(SelFiltering, AsksAtEveryMatchBeyond2000UntilYes) {
    FilterBench bench;
    Lines entries(2010, EntryLineOf("00000001", {"hit.mp3"}));
    entries.insert(entries.begin() + 5, EntryLineOf("00000001", {"other.mp3"}));
    bench.write(entries);
    bench.env.screen.answerMessage(MsgAnswer::No);
    bench.env.screen.answerMessage(MsgAnswer::No);
    bench.env.screen.answerMessage(MsgAnswer::Yes);
    EXPECT_EQ(bench.run(Settings(1, 1, WordMode::ExactPhrase, "hit")).size(), 2003u);
    ASSERT_EQ(bench.env.screen.shown.size(), 3u);
    EXPECT_EQ(bench.env.screen.shown[0].text,
              "The result includes over 2000 entries already.\r\nWould you like to stop the "
              "search?");
    EXPECT_EQ(bench.env.screen.shown[0].buttons, MsgButtons::YesNo);
    // A removal never asks.
    EXPECT_EQ(bench.run(Settings(1, 1, WordMode::ExactPhrase, "other"), true).size(), 2010u);
}

// The filter loop for one line of a new search, step by step as the window's loop goes,
// with texts compared plainly in their UTF-8 reading.
bool LoopTakes(const std::string& line, const SearchSettings& s, const Lines& words) {
    auto text = [&](std::string_view t) {
        return s.caseSensitive ? TextAsUtf8(t) : LowerCase(TextAsUtf8(t));
    };
    auto compare = [&](const std::string& field, const std::string& word) {
        switch (s.comparison) {
            case 1:
                return text(field).find(text(word)) != std::string::npos;
            case 2:
                return text(field).find(text(word)) == std::string::npos;
            case 3:
                return text(field) == text(word);
            case 4:
                return text(field) != text(word);
            case 5:
                return NumericValue(field) > NumericValue(word);
            case 6:
                return NumericValue(field) >= NumericValue(word);
            case 7:
                return NumericValue(field) < NumericValue(word);
            default:
                return NumericValue(field) <= NumericValue(word);
        }
    };
    const bool scan = s.field == 0;
    bool stop = false;
    for (size_t w = 0; w < words.size() && !stop; ++w) {
        bool found = false;
        int n = 1;
        std::string rest = line.size() > 9 ? line.substr(9) : "";
        std::string field;
        for (;;) {
            for (int i = n; i <= 23; ++i) {
                const size_t sep = rest.find('\x01');
                field = rest.substr(0, sep);
                if (sep != std::string::npos)
                    rest.erase(0, sep + 1);
                if (i == s.field || (scan && i == n))
                    break;
            }
            const bool hit = compare(field, words[w]);
            found = s.comparison == 2 ? hit : found || hit;
            const bool more = w + 1 < words.size();
            if (s.mode == WordMode::AnyWords && found)
                stop = true;
            if (s.mode == WordMode::AnyWords && !found && more)
                break;
            if (s.mode == WordMode::AllWords && !found)
                stop = true;
            if (s.mode == WordMode::AllWords && found && more)
                break;
            if (found)
                return true;
            if (!(scan && n < 19))
                break;
            ++n;
        }
    }
    return false;
}

TEST(SelFiltering, TakesWhatTheLoopTakesAndTheRemovalTheRest) {
    std::mt19937 random(11);
    auto pick = [&](std::initializer_list<const char*> from) {
        return std::string(from.begin()[random() % from.size()]);
    };
    auto piece = [&] {
        std::string text;
        for (int n = random() % 4; n > 0; --n)
            text += pick({"a", "A", "b", "ab", " ", "1", "2.5", "\xE9", "\xC3\xA9", "\xC9"});
        return text;
    };
    FilterBench bench;
    for (int round = 0; round < 300; ++round) {
        Lines entries;
        for (int n = random() % 12; n > 0; --n) {
            std::string line = pick({"00000001", "0000", "", "000000010"});
            for (int f = random() % 24; f > 0; --f)
                line += "\x01" + piece();
            entries.push_back(line);
        }
        bench.write(entries);
        SearchSettings s = Settings(random() % 23, 1 + random() % 8,
                                    static_cast<WordMode>(random() % 3), "", random() % 4 == 0);
        for (int n = random() % 4; n > 0; --n)
            s.text += piece() + pick({" ", "\"", ""});
        std::string text = s.text;
        const Lines words = Wordsplitter(text, s.mode);
        Lines taken, kept;
        for (const std::string& line : entries)
            (LoopTakes(line, s, words) ? taken : kept).push_back(line);
        if (words.empty())
            kept.clear();
        EXPECT_EQ(bench.run(s), taken) << round;
        EXPECT_EQ(bench.run(s, true), kept) << round;
    }
}

}  // namespace
}  // namespace zvx
