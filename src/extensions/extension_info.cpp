#include "extensions/extension_info.h"

#include <string_view>

#include "common/app_files.h"
#include "common/common.h"
#include "common/field_text.h"
#include "extensions/addon_call.h"
#include "extensions/declaration.h"
#include "extensions/extension_files.h"

namespace zvx {

namespace {

void TakeTag(std::string_view trimmed, std::string_view tag, std::string& value,
             bool* present = nullptr) {
    if (!TagAtStart(trimmed, tag))
        return;
    value = std::string(trimmed.substr(tag.size()));
    if (present)
        *present = true;
}

}  // namespace

ExtensionInfo ReadExtensionInfo(const Common& common, const std::string& fileName) {
    ExtensionInfo info;
    const auto path = FindInFolder(PluginsFolder(common), fileName);
    for (const std::string& line : ReadDeclarationLines(path)) {
        const std::string_view trimmed = Trim(line);
        TakeTag(trimmed, "<INFO>", info.info, &info.hasInfo);
        TakeTag(trimmed, "<CONFIG>", info.config, &info.hasConfig);
        TakeTag(trimmed, "<VERSION>", info.version);
        TakeTag(trimmed, "<COPYRIGHT>", info.copyright);
        TakeTag(trimmed, "<DESCRIPTION>", info.description);
        TakeTag(trimmed, "<NAME>", info.name);
    }
    return info;
}

std::string ExtensionInfoText(const ExtensionInfo& info, const std::string& fileName) {
    return "NAME: " + info.name + "\r\nDECLARATION-FILE: " + fileName +
           "\r\nCOPYRIGHT: " + info.copyright + "\r\nVERSION: " + info.version +
           "\r\nDESCRIPTION: " + info.description;
}

std::optional<std::string> ConfigInfo(const Common& common, const std::string& fileName,
                                      const std::string& mode) {
    const ExtensionInfo info = ReadExtensionInfo(common, fileName);
    if (mode == "config") {
        if (info.hasConfig)
            return AddOnCallString("", "", info.config);
        common.screen().message("ZVX-Error", "This Extension is not configurable!",
                                MsgButtons::OkOnly, MsgIcon::Information);
        return std::nullopt;
    }
    if (info.hasInfo)
        return AddOnCallString("", "", info.info);
    common.screen().message("ZVX-Extension-Info", ExtensionInfoText(info, fileName),
                            MsgButtons::OkOnly, MsgIcon::Information);
    return std::nullopt;
}

}  // namespace zvx
