#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "document/editor_form.h"
#include "support/catalogue_bytes.h"

namespace zvx {
namespace {

using test::EntryLineOf;

// An entry line of folder 00000001 from its fields 1 to 22 separated by "|".
std::string LineOf(const std::string& fields) {
    std::vector<std::string> split;
    for (size_t from = 0, bar = 0; bar != std::string::npos; from = bar + 1) {
        bar = fields.find('|', from);
        split.push_back(fields.substr(from, bar - from));
    }
    return EntryLineOf("00000001", split);
}

// The texts of fields 1 to 22, each followed by "|".
std::string Shown(const EditorForm& form) {
    std::string shown;
    for (size_t field = 1; field < form.texts.size(); ++field)
        shown += form.texts[field] + "|";
    return shown;
}

TEST(YearCheck, MakesFourDigitYearsAndReplacesWhatIsNoYear) {
    const std::pair<const char*, const char*> cases[] = {
        {"7", "1997"},  {"3", "2003"},   {"0", "2000"},    {"4", "1994"},    {"85", "1985"},
        {"29", "2029"}, {"30", "1930"},  {"99", "1999"},   {"1985", "1985"}, {"123", "2000"},
        {"", "2000"},   {"1.5", "2000"}, {"3000", "2000"}, {"0999", "2000"}, {"-5", "2000"},
        {"ab", "2000"}, {" 7", "2007"},  {"12345", "2000"}};
    for (const auto& [typed, checked] : cases)
        EXPECT_EQ(YearCheck(typed), checked) << "typed: \"" << typed << "\"";
}

TEST(FillForm, ShowsEachFieldInItsDisplayFormAndClearsEmptyOnes) {
    EditorForm form;
    FillForm(form,
             LineOf("a.mp3|1234567|c:\\music|DISC|1||7.4.2001 12:00:00|Audio: Album|Title|||||"
                    "|7|1999|||0|128|44100|"),
             1);
    EXPECT_EQ(Shown(form),
              "a.mp3|1 234 567|c:\\music|DISC|Read-only: Yes|<unknown>|4-7-2001|Audio: Album|"
              "Title|||<unknown>|||07|1999|||n/a|128 kbps|44100 hz||");
    FillForm(form, LineOf("b|0|||0|||||||||||||||0|0|0"), 1);
    EXPECT_EQ(Shown(form), "b||||Read-only: No|<unknown>||||||<unknown>|||00|||||n/a|n/a|n/a|");
}

TEST(FillForm, ALockedFieldKeepsWhatTheFormShows) {
    EditorForm form;
    form.texts[11] = "Kept";
    form.locks[11] = true;
    form.texts[16] = "1985";
    form.locks[16] = true;
    FillForm(form, LineOf("a.mp3|||||||||Other"), 0);
    EXPECT_EQ(form.texts[11], "Kept");
    EXPECT_EQ(form.texts[16], "1985") << "an empty field keeps a locked text too";
    form.locks[16] = false;
    ClearForm(form);
    EXPECT_EQ(form.texts[11] + "|" + form.texts[16] + "|" + form.texts[2], "Kept||0");
}

}  // namespace
}  // namespace zvx
