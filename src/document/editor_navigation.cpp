#include "document/editor_navigation.h"

#include <algorithm>

#include "common/field_text.h"
#include "common/numeric_value.h"
#include "store/entry_line.h"

namespace zvx {

EditorPlace PlaceEditor(const EditorMemory& memory, const EditorListing& listing) {
    EditorPlace place;
    place.position = memory.EditorPosition;
    if (listing.folderPath != memory.EditorFolder ||
        std::to_string(listing.rowCount) != memory.EditorCount)
        place.position = 0;
    place.count =
        listing.selectedOnly ? static_cast<long>(listing.selectedRows.size()) : listing.rowCount;
    if (place.count == 0)
        return place;
    place.position = std::clamp(place.position, 1L, place.count);
    place.backEnabled = place.position != 1;
    place.nextEnabled = place.position != place.count;
    place.row = listing.selectedOnly ? listing.selectedRows[static_cast<size_t>(place.position - 1)]
                                     : static_cast<int>(place.position);
    return place;
}

std::string EntryCaption(long position, long count, bool changed) {
    std::string caption = "Entry " + std::to_string(position) + " of " + std::to_string(count);
    if (changed)
        caption += " (changed)";
    return caption;
}

std::string ChangesCaption(size_t changedEntries) {
    if (changedEntries == 0)
        return "(no changes made yet)";
    if (changedEntries == 1)
        return "(1 entry was changed)";
    return "(" + std::to_string(changedEntries) + " entries were changed)";
}

std::vector<JumpRow> JumpList(const std::vector<std::string_view>& lines,
                              const std::function<bool(std::string_view)>& changed) {
    std::vector<JumpRow> rows;
    rows.reserve(lines.size());
    for (size_t i = 0; i < lines.size(); ++i) {
        const std::string padded = "0000" + std::to_string(i + 1);
        rows.push_back({std::string(Right(padded, 4)), std::string(SplitEntryLine(lines[i], 1)[1]),
                        changed(lines[i]) ? "changed" : ""});
    }
    return rows;
}

long JumpPosition(std::string_view entryColumn) {
    return static_cast<long>(RoundHalfEven(NumericValue(entryColumn)));
}

bool StyleChecked(std::string_view name, std::string_view styleText) {
    const std::string text = ", " + std::string(styleText);
    return text.find(", " + std::string(name)) != std::string::npos;
}

std::string StyleText(const std::vector<std::string>& checkedNames) {
    std::string text;
    for (size_t i = 0; i < checkedNames.size(); ++i)
        text += (i > 0 ? ", " : "") + checkedNames[i];
    return text;
}

std::string TrackStep(std::string_view track, int spinnerValue) {
    const double value = NumericValue(track);
    if (spinnerValue == 2 && value >= 1)
        return NumberText(value - 1);
    if (spinnerValue == 0 && value <= 9998)
        return NumberText(value + 1);
    return std::string(track);
}

}  // namespace zvx
