#include "exchange/export_target.h"

#include "common/common.h"
#include "common/file_dialog_modes.h"
#include "common/text_case.h"
#include "document/document_messages.h"
#include "platform/catalogue_path.h"
#include "platform/file_io.h"
#include "store/split_path.h"
#include "store/write_protection.h"

namespace zvx {

namespace {

constexpr const char* kProposedName = "Exported.zvx";

// The extension of the file's name, as SplitPath finds it in the last part of a path.
std::string ExtensionOf(const std::string& native) {
    return SplitPath(CataloguePathFromNative("/" + native)).extension;
}

}  // namespace

std::optional<std::string> ExportTargetName(Screen& screen, const std::string& chosen) {
    std::string name = chosen;
    if (ExtensionOf(name).empty())
        name += name.ends_with('.') ? "zvx" : ".zvx";
    if (!IsCatalogueName(screen, name))
        return std::nullopt;
    return name;
}

bool IsCatalogueName(Screen& screen, const std::string& path) {
    if (LowerCase(ExtensionOf(path)) == "zvx")
        return true;
    screen.message("Error", kWrongExtensionText, MsgButtons::OkOnly, MsgIcon::Critical);
    return false;
}

bool WriteExportTarget(const Common& common, const std::filesystem::path& exportFile,
                       const std::filesystem::path& target) {
    if (CheckWriteProtection(common, target))
        return false;
    CopyFileSafely(exportFile, target);
    common.screen().message("Export-Info", "Export Completed!", MsgButtons::OkOnly,
                            MsgIcon::Information);
    return true;
}

void RunBuiltInExporter(Common& common, const std::filesystem::path& exportFile) {
    for (;;) {
        common.screen().status("Showing \"Export ZVX\" Dialogue...");
        const FileDialogResult chosen = expshowing(common, "export", "", kProposedName);
        if (chosen.paths.empty())
            return;
        const std::optional<std::string> target =
            ExportTargetName(common.screen(), chosen.paths.front());
        if (!target || WriteExportTarget(common, exportFile, *target))
            return;
    }
}

}  // namespace zvx
