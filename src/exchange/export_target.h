#pragma once
// The built-in exporter: export.tmp saved as a new .zvx document.

#include <filesystem>
#include <optional>
#include <string>

namespace zvx {

class Common;
class Screen;

// Whether the path names a catalogue: its extension is "zvx" in any case. If not, the
// exchange's critical box "Error" says so.
bool IsCatalogueName(Screen& screen, const std::string& path);

// The name the exporter writes for a chosen name: one without extension gets ".zvx",
// one ending in "." gets "zvx". Any other extension than "zvx" (in any case) is refused
// with the critical box "Error"; then none.
std::optional<std::string> ExportTargetName(Screen& screen, const std::string& chosen);

// Copies the export file over the target, crash-safely, and tells "Export Completed!".
// A write-protected target brings the question whether to overwrite it; Yes clears its
// attributes. False when the target was kept (No, or its mode could not be changed).
bool WriteExportTarget(const Common& common, const std::filesystem::path& exportFile,
                       const std::filesystem::path& target);

// The exporter as the dialog runs it: the file dialog "export" proposing
// "Exported.zvx", until the chosen file is written, the name is refused, or the dialog
// is cancelled.
void RunBuiltInExporter(Common& common, const std::filesystem::path& exportFile);

}  // namespace zvx
