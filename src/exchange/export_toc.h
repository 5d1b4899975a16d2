#pragma once
// The TOC of an exported catalogue: kept whole ("all"), cut down to the folders its
// entries use and their ancestors ("optimize"), or replaced by one folder that takes
// every entry ("new").

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace zvx {

class Common;

enum class ExportTocMode { All, Optimize, New };

// The mode of its word ("all", "optimize", "new"), or none.
std::optional<ExportTocMode> ExportTocModeOf(std::string_view word);

// The one folder of mode "new".
inline constexpr const char* kExportedFolderPath = "Exported Entries\\";
inline constexpr const char* kExportedFolderId = "00000001";

// Today's date in the short form the status bar shows it.
std::string TodayShortDate();

// One run of the export dialog: the file becomes the untouched copy `backup` with its
// entry offset set anew (a search's file may have it wrong), so that runs with different
// modes are independent, and then takes the mode. Throws FileError.
//
// "new": the TOC becomes the single group "Exported Entries\" with the description
// "Exported with ZVX (today)", the icon character "-" and the ID 00000001, and every
// entry line's first eight characters become that ID.
//
// "optimize": the TOC keeps, unchanged, the groups of the IDs the entry lines use, in
// order of first use, followed by their ancestors as the walk meets them: for each used
// ID in turn, every group in file order whose path is, in lower case, the start of the
// ID's path and no longer than it. An ID missing from the TOC has the path "<???>" and no
// group. The entry lines follow unchanged. The TOC is read once and the used IDs are held
// in memory, so the cost grows with the file, not with its square.
void ApplyExportToc(Common& common, const std::filesystem::path& file,
                    const std::filesystem::path& backup, ExportTocMode mode,
                    std::string_view today);

}  // namespace zvx
