#include "extensions/options_scans.h"

#include "common/text_case.h"
#include "extensions/extension_files.h"
#include "store/settings.h"

namespace zvx {

namespace {

std::vector<ExtensionRow> ScanRows(const Common& common, ExtensionKind kind, const char* pattern,
                                   const char* disableKey, const char* label,
                                   const ScanTextSink& show) {
    std::vector<ExtensionRow> rows;
    const std::filesystem::path folder = PluginsFolder(common);
    for (const std::string& name : DeclarationFiles(common, pattern)) {
        if (show)
            show(label + name);
        const DeclarationScan scan =
            ScanDeclaration(kind, name, ReadDeclarationLines(folder / name));
        if (!scan.accepted())
            continue;
        const ExtensionDeclaration& d = scan.declaration;
        const bool disabled = ReadSetting(common, DeclarationKey(disableKey, name), "NO").isYes();
        rows.push_back({d.name.empty() ? d.caption : d.name, UpperCase(name),
                        disabled ? "NO" : "YES", disabled ? 2 : 1});
    }
    return rows;
}

}  // namespace

std::vector<ExtensionRow> PLUGini(const Common& common, const ScanTextSink& show) {
    return ScanRows(common, ExtensionKind::PlugIn, kPlugInPattern, kPlugInDisableKey,
                    "Scanning Plug-In: ", show);
}

std::vector<ExtensionRow> Addini(const Common& common, const ScanTextSink& show) {
    return ScanRows(common, ExtensionKind::AddOn, kAddOnPattern, kAddOnDisableKey,
                    "Scanning Add-On: ", show);
}

std::string ToggleCaption(const ExtensionRow& row) {
    return row.enabled == "YES" ? "Disable" : "Enable";
}

}  // namespace zvx
