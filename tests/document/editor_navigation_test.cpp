#include "document/editor_navigation.h"

#include <gtest/gtest.h>

#include "support/catalogue_bytes.h"

namespace zvx {
namespace {

TEST(PlaceEditor, ThePositionStartsOverInAnotherListingAndStaysWithinTheRows) {
    const EditorMemory last{.EditorPosition = 7, .EditorFolder = "Music", .EditorCount = "9"};
    EditorListing listing{.folderPath = "Music", .rowCount = 9};
    EditorPlace place = PlaceEditor(last, listing);
    EXPECT_EQ(place.position, 7);
    EXPECT_EQ(place.row, 7);
    EXPECT_TRUE(place.backEnabled && place.nextEnabled);

    listing.folderPath = "Music\\Rock";  // another folder: the first row
    place = PlaceEditor(last, listing);
    EXPECT_EQ(place.position, 1);
    EXPECT_FALSE(place.backEnabled);
    listing = {.folderPath = "Music", .rowCount = 8};  // another count
    EXPECT_EQ(PlaceEditor(last, listing).position, 1);

    // Next beyond the last row stays on it.
    place = PlaceEditor({.EditorPosition = 10, .EditorFolder = "Music", .EditorCount = "9"},
                        {.folderPath = "Music", .rowCount = 9});
    EXPECT_EQ(place.position, 9);
    EXPECT_TRUE(place.backEnabled);
    EXPECT_FALSE(place.nextEnabled);
}

TEST(PlaceEditor, SelectedEntriesOnlyCountsTheSelectedRowsAndShowsTheNthOfThem) {
    const EditorMemory last{.EditorPosition = 2, .EditorFolder = "A", .EditorCount = "6"};
    EditorPlace place = PlaceEditor(
        last, {.folderPath = "A", .rowCount = 6, .selectedRows = {2, 5}, .selectedOnly = true});
    EXPECT_EQ(place.count, 2);
    EXPECT_EQ(place.row, 5);
    // Nothing selected leaves nothing to show.
    place = PlaceEditor(last, {.folderPath = "A", .rowCount = 6, .selectedOnly = true});
    EXPECT_EQ(place.count, 0);
    EXPECT_EQ(place.row, 0);
    EXPECT_FALSE(place.backEnabled || place.nextEnabled);
}

TEST(EditorCaptions, EntryAndChangeCounts) {
    EXPECT_EQ(EntryCaption(3, 12, false), "Entry 3 of 12");
    EXPECT_EQ(EntryCaption(1, 1, true), "Entry 1 of 1 (changed)");
    EXPECT_EQ(ChangesCaption(0), "(no changes made yet)");
    EXPECT_EQ(ChangesCaption(1), "(1 entry was changed)");
    EXPECT_EQ(ChangesCaption(2), "(2 entries were changed)");
}

TEST(JumpList, PositionsAreFourDigitsAndChangedLinesAreMarked) {
    const std::string a = test::EntryLineOf("00000001", {"a.mp3", "1"});
    const std::string b = test::EntryLineOf("00000001", {"b.mp3", "2"});
    std::vector<std::string_view> lines(12345, a);
    lines[1] = b;
    const std::vector<JumpRow> rows =
        JumpList(lines, [&](std::string_view line) { return line == b; });
    EXPECT_EQ(rows[0].entry + "|" + rows[0].filename + "|" + rows[0].state, "0001|a.mp3|");
    EXPECT_EQ(rows[1].entry + "|" + rows[1].filename + "|" + rows[1].state, "0002|b.mp3|changed");
    // Beyond 9999 only the last four digits are left, and the jump goes there.
    EXPECT_EQ(rows.back().entry, "2345");
    EXPECT_EQ(JumpPosition(rows.back().entry), 2345);
    EXPECT_EQ(JumpPosition("0012"), 12);
}

TEST(StyleChooser, ANameCountsWhereItBeginsAStyleAndTheTextKeepsListOrder) {
    EXPECT_TRUE(StyleChecked("Cool", "Fast, Cool"));
    EXPECT_TRUE(StyleChecked("Cool", "Coolest"));  // the beginning of a longer name
    EXPECT_TRUE(StyleChecked("Fast", "Fast"));
    EXPECT_FALSE(StyleChecked("ool", "Cool"));
    EXPECT_FALSE(StyleChecked("Cool", "Fast,Cool"));
    EXPECT_EQ(StyleText({"Cool", "Fast", "Sad"}), "Cool, Fast, Sad");
    EXPECT_EQ(StyleText({}), "");
}

TEST(TrackSpinner, StepsWithinZeroAndTenThousand) {
    EXPECT_EQ(TrackStep("05", 2), "4");
    EXPECT_EQ(TrackStep("05", 0), "6");
    EXPECT_EQ(TrackStep("0", 2), "0");  // not below 0
    EXPECT_EQ(TrackStep("9998", 0), "9999");
    EXPECT_EQ(TrackStep("9999", 0), "9999");  // not above 9999
    EXPECT_EQ(TrackStep("07", 1), "07");
}

}  // namespace
}  // namespace zvx
