#include "extensions/addon_menus.h"

#include <array>
#include <string_view>

#include "common/text_case.h"
#include "extensions/addon_call.h"
#include "extensions/extension_files.h"
#include "extensions/options_scans.h"
#include "store/settings.h"

namespace zvx {

namespace {

struct MenuSection {
    std::string_view name;
    const char* parentKey;
    const char* separatorKey;
};

constexpr std::array<MenuSection, 7> kSections{{
    {"ENTRY", "foldermnuTOP", "entryaddsep"},
    {"FOLDER", "pathmnuTOP", "folderaddsep"},
    {"SELECT", "foldermnu1", "folderaddsep"},
    {"FILE", "mnuFile", "fileaddsep"},
    {"ZVX", "mnuView", "zvxaddsep"},
    {"HELP", "mnuHelp", "helpsep"},
    {"ADDONS", "addonmnuTOP", "addonaddsep"},
}};

std::string CallStringOf(const ExtensionDeclaration& d) {
    return AddOnCallString(d.modal, d.events, d.exe);
}

}  // namespace

std::vector<AddOnMenuItem> AddOnMenuItems(const std::vector<ExtensionDeclaration>& records) {
    std::vector<AddOnMenuItem> items;
    std::array<bool, kSections.size()> separated{};
    for (size_t number = 0; number < records.size(); ++number) {
        const ExtensionDeclaration& d = records[number];
        for (size_t s = 0; s < kSections.size(); ++s) {
            if (d.menu != kSections[s].name)
                continue;
            items.push_back({kSections[s].parentKey, kSections[s].separatorKey, !separated[s],
                             kAddOnKeyPrefix + std::to_string(number) + ")", d.caption,
                             CallStringOf(d)});
            separated[s] = true;
        }
    }
    return items;
}

std::vector<AddOnShortcut> AddOnShortcuts(const Common& common, const ScanTextSink& show) {
    std::vector<AddOnShortcut> shortcuts;
    for (const ListedExtension& listed : ScanSilently(common, ExtensionKind::AddOn, show)) {
        const auto setting = [&](const char* prefix) {
            return ReadSetting(common, DeclarationKey(prefix, listed.fileName), "NO").isYes();
        };
        if (setting(kAddOnDisableKey) || !setting(kAddOnShortcutKey))
            continue;
        const ExtensionDeclaration& d = listed.declaration;
        const std::string menu = UpperCase(d.menu);
        const bool visible = menu == "FILE" || menu == "ZVX" || menu == "ROOT" || menu == "HELP";
        shortcuts.push_back({d.caption, CallStringOf(d), visible});
    }
    return shortcuts;
}

}  // namespace zvx
