#include <gtest/gtest.h>

#include "document/entry_rows.h"
#include "document/list_sorting.h"
#include "store/entry_line.h"
#include "support/catalogue_bytes.h"

namespace zvx {
namespace {

using test::EntryLineOf;

// An entry line with the given fields by number; the others empty.
std::string LineWith(std::initializer_list<std::pair<int, std::string>> fields) {
    std::vector<std::string> values(22);
    for (const auto& [number, text] : fields)
        values[number - 1] = text;
    return EntryLineOf("00000001", values);
}

std::string Shown(int column, const std::string& value, const LoadedSettings& settings = {}) {
    return DisplayText(LineWith({{column, value}}), column, settings);
}

TEST(EntryDisplay, SizesAreZeroPaddedGroupsOfThreeAndFlagsAreWords) {
    EXPECT_EQ(Shown(2, "5"), "000 000 000 005");
    EXPECT_EQ(Shown(2, ""), "000 000 000 000");
    EXPECT_EQ(Shown(2, "1234567890123"), "1234 567 890 123");
    EXPECT_EQ(Shown(2, "2.5"), "000 000 000 003");
    EXPECT_EQ(Shown(2, "12x"), "00000000000012x");
    // Read-only, values that are not available, and fields shown as stored.
    EXPECT_EQ(Shown(5, "1"), "Yes");
    EXPECT_EQ(Shown(5, "0"), "No");
    EXPECT_EQ(Shown(5, "yes"), "No");
    for (int column : {19, 20, 21}) {
        EXPECT_EQ(Shown(column, "0"), "n/a") << column;
        EXPECT_EQ(Shown(column, ""), "") << column;
        EXPECT_EQ(Shown(column, "128"), "128") << column;
    }
    EXPECT_EQ(Shown(22, ""), "n/a");
    EXPECT_EQ(Shown(22, "Joint Stereo"), "Joint Stereo");
    EXPECT_EQ(Shown(8, "Audio: Album"), "Audio: Album");
}

TEST(EntryDisplay, TrackAndYearOfZeroAreEmpty) {
    LoadedSettings renumbering;
    renumbering.renumberingLevel = 2;  // renumbering is on by default
    EXPECT_EQ(Shown(15, "7", renumbering), "007");
    EXPECT_EQ(Shown(15, "0012", renumbering), "012");
    EXPECT_EQ(Shown(15, "0", renumbering), "");
    EXPECT_EQ(Shown(15, "", renumbering), "");

    LoadedSettings asStored;
    asStored.viewRenumbering = false;
    EXPECT_EQ(Shown(15, "7", asStored), "7");
    EXPECT_EQ(Shown(15, "0007", asStored), "0007");
    EXPECT_EQ(Shown(15, "00", asStored), "");
    EXPECT_EQ(Shown(15, "x", asStored), "");

    EXPECT_EQ(Shown(16, "0"), "");
    EXPECT_EQ(Shown(16, ""), "");
    EXPECT_EQ(Shown(16, "1999"), "1999");
}

TEST(EntryDisplay, FieldsFollowTheSplitRuleOfShortAndOddLines) {
    const std::vector<std::string> lines = {LineWith({{1, "a.mp3"}, {22, "Mono"}}),
                                            "00000001\x01name\x01size", "00000001junk\x01name",
                                            "0000000", "00000001"};
    for (const std::string& line : lines) {
        EntryFields fields = SplitEntryLine(line);
        for (int field = 0; field <= 22; ++field)
            EXPECT_EQ(EntryItem(line, field), fields[field]) << line << " field " << field;
    }
    // A line that ends early shows its last field again in the columns behind it.
    EXPECT_EQ(DisplayText("00000001\x01name\x01size", 3, {}), "size");
}

TEST(EntryDisplay, RealShowEntryKeepsTheWholeLineAsTag) {
    const std::string line = LineWith({{1, "a.mp3"}, {2, "5"}, {16, "0"}});
    EntryRow row = RealShowEntry(line, {});
    EXPECT_EQ(row.Tag, line);
    EXPECT_EQ(row.texts[0], "a.mp3");
    EXPECT_EQ(row.texts[1], "000 000 000 005");
    EXPECT_EQ(row.texts[21], "n/a");
}

TEST(ListSorting, SortsByTheShownTextsInTheOrderAHeaderClickChose) {
    EntryRows rows;
    rows.add(LineWith({{1, "b"}, {2, "100"}}));
    rows.add(LineWith({{1, "A"}, {2, "9"}}));
    rows.add(LineWith({{1, "a"}, {2, "10"}}));
    // Padded sizes sort as numbers.
    EXPECT_EQ(SortedRowOrder(rows, {1, kSortAscending}, {}), (std::vector<uint32_t>{1, 2, 0}));
    EXPECT_EQ(SortedRowOrder(rows, {1, kSortDescending}, {}), (std::vector<uint32_t>{0, 2, 1}));
    // Names without regard to case; equal ones stay in file order.
    EXPECT_EQ(SortedRowOrder(rows, {0, kSortAscending}, {}), (std::vector<uint32_t>{1, 2, 0}));
    EXPECT_EQ(SortedRowOrder(rows, {0, kSortDescending}, {}), (std::vector<uint32_t>{0, 1, 2}));

    // A click on a column header chooses its column; a second click flips the order.
    ListSort sort;
    ColumnClick(sort, 3);
    EXPECT_EQ(sort.SortKey, 2);
    EXPECT_EQ(sort.SortOrder, kSortAscending);
    ColumnClick(sort, 3);
    EXPECT_EQ(sort.SortOrder, kSortDescending);
    ColumnClick(sort, 1);
    EXPECT_EQ(sort.SortKey, 0);
    EXPECT_EQ(sort.SortOrder, kSortDescending);
    ColumnClick(sort, 1);
    EXPECT_EQ(sort.SortOrder, kSortAscending);
}

}  // namespace
}  // namespace zvx
