#pragma once
// The column layout of an entry list (position, width and sort state of its columns),
// and the named layouts kept as .zvl files in the CONFIG folder.

#include <array>
#include <string>
#include <vector>

#include "document/entry_rows.h"
#include "document/list_sorting.h"
#include "store/column_setting_file.h"

namespace zvx {

class Common;

// The titles of the entry list's columns 1 to 22.
inline constexpr std::array<const char*, kListColumnCount> kListColumnTitles = {
    "Filename",  "Size",           "Path",           "Drive-ID", "Read-Only", "Drive Description",
    "File-Date", "Content-Type",   "Title",          "Artist",   "Album",     "Genre",
    "Producer",  "Style",          "Track",          "Year",     "Comment",   "Description",
    "Length",    "Bitrate (kbps)", "Frequency (hz)", "Mode"};

// The columns of a list control as the layout code sees them: each column (numbered
// from 1) has a position (its place in the display order, from 1) and a width; a width
// of 0 hides it. Moving a column to a position shifts the columns between, as a list
// control's header does.
class ListLayout {
  public:
    // `count` columns in their own order, each `width` wide.
    ListLayout(int count, int width);

    int columnCount() const { return static_cast<int>(order_.size()); }
    // The column numbers in display order.
    const std::vector<int>& order() const { return order_; }
    int Position(int column) const;
    // Moves the column to the position; a column or position out of range is ignored.
    void setPosition(int column, int position);
    int width(int column) const { return widths_[column - 1]; }
    // A column out of range is ignored.
    void setWidth(int column, int width);

    ListSort sort;

  private:
    std::vector<int> order_;
    std::vector<int> widths_;
};

// Applies a stored layout: the sort state, then each stored column in turn to the next
// position with its width (a column without a width keeps its own). Columns the layout
// does not name keep their order behind. With `shift` the list is the search result
// list, whose column 2 "ZVX-Folder" is no entry field: stored columns from 2 on are its
// columns from 3 on, and "ZVX-Folder" is put in front of the first stored column.
void ApplyColumnSetting(ListLayout& layout, const ColumnSetting& setting, bool shift);

// The stored form of a layout: the sort state and every column in display order with
// its width. With `shift` the column at position 1 is left out and the columns from 3
// on are stored as 2 on.
ColumnSetting ColumnSettingOf(const ListLayout& layout, bool shift);

// LoadColumnSetting: applies `name` + ".zvl" from CONFIG. Throws FileError when the
// file cannot be read.
void LoadColumnSetting(const Common& common, ListLayout& layout, const std::string& name,
                       bool shift);

// SaveColumnSetting: stores the layout as `name` + ".zvl" in CONFIG. An existing file is
// replaced only when the question "Replace existing setting "name" ?" is answered with
// Yes; any other answer shows "Setting has not been saved.". True when the file was
// written; the caller then runs CheadRefresh. Throws FileError when it cannot write.
bool SaveColumnSetting(const Common& common, const ListLayout& layout, const std::string& name,
                       bool shift);

// The layout a new window loads: the one DEFAULTREPORTCOLUMNS names when its file
// exists, otherwise "Default".
std::string StartColumnSettingName(const Common& common);

// The names of the column settings for the menu (CheadRefresh): the .zvl files in CONFIG
// without their extension, sorted without regard to case.
std::vector<std::string> ColumnSettingNames(const Common& common);

}  // namespace zvx
