#include "extensions/options_scans.h"

#include "common/text_case.h"
#include "extensions/extension_files.h"
#include "store/settings.h"

namespace zvx {

namespace {

std::vector<ExtensionRow> ScanRows(const Common& common, ExtensionKind kind, const char* disableKey,
                                   const ScanTextSink& show) {
    std::vector<ExtensionRow> rows;
    for (const ListedExtension& listed : ScanSilently(common, kind, show)) {
        const ExtensionDeclaration& d = listed.declaration;
        const bool disabled =
            ReadSetting(common, DeclarationKey(disableKey, listed.fileName), "NO").isYes();
        rows.push_back({d.name.empty() ? d.caption : d.name, UpperCase(listed.fileName),
                        disabled ? "NO" : "YES", disabled ? 2 : 1});
    }
    return rows;
}

}  // namespace

std::vector<ListedExtension> ScanSilently(const Common& common, ExtensionKind kind,
                                          const ScanTextSink& show) {
    const bool plugIn = kind == ExtensionKind::PlugIn;
    const std::string label = plugIn ? "Scanning Plug-In: " : "Scanning Add-On: ";
    std::vector<ListedExtension> accepted;
    const std::filesystem::path folder = PluginsFolder(common);
    for (const std::string& name :
         DeclarationFiles(common, plugIn ? kPlugInPattern : kAddOnPattern)) {
        if (show)
            show(label + name);
        DeclarationScan scan = ScanDeclaration(kind, name, ReadDeclarationLines(folder / name));
        if (scan.accepted())
            accepted.push_back({name, std::move(scan.declaration)});
    }
    return accepted;
}

std::vector<ExtensionRow> PLUGini(const Common& common, const ScanTextSink& show) {
    return ScanRows(common, ExtensionKind::PlugIn, kPlugInDisableKey, show);
}

std::vector<ExtensionRow> Addini(const Common& common, const ScanTextSink& show) {
    return ScanRows(common, ExtensionKind::AddOn, kAddOnDisableKey, show);
}

std::string ToggleCaption(const ExtensionRow& row) {
    return row.enabled == "YES" ? "Disable" : "Enable";
}

}  // namespace zvx
