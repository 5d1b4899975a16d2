#include "extensions/filter_scan.h"

#include <string_view>

#include "common/app_files.h"
#include "common/common.h"
#include "common/field_text.h"
#include "common/numeric_value.h"
#include "common/text_case.h"
#include "extensions/addon_call.h"
#include "extensions/declaration.h"
#include "extensions/extension_files.h"

namespace zvx {

namespace {

struct FilterDeclaration {
    std::string name;
    std::string requiredVersion;
    std::string exe;
    std::string description;
    std::string copyright;
    std::string version;
    std::string suffixes;  // the "<suffix>" block's lines, upper-cased, joined by blanks
    bool fast = false;     // a line begins "<modal>fast"
};

void TakeTag(std::string_view trimmed, std::string_view tag, std::string& value) {
    if (TagAtStart(trimmed, tag))
        value = std::string(trimmed.substr(tag.size()));
}

// Reads the block that starts at `next` up to its closing line, and leaves `next`
// behind it.
std::string ReadSuffixBlock(const std::vector<std::string>& lines, size_t& next) {
    std::string joined;
    while (next < lines.size()) {
        const std::string_view line = Trim(lines[next++]);
        if (TagAtStart(line, "</suffix>"))
            break;
        if (!line.empty())
            joined.append(" ").append(UpperCase(line));
    }
    return std::string(Trim(joined));
}

FilterDeclaration ParseFilter(const std::vector<std::string>& lines) {
    FilterDeclaration d;
    for (size_t next = 0; next < lines.size();) {
        const std::string_view trimmed = Trim(lines[next++]);
        TakeTag(trimmed, "<name>", d.name);
        TakeTag(trimmed, "<requires>", d.requiredVersion);
        TakeTag(trimmed, "<exe>", d.exe);
        TakeTag(trimmed, "<description>", d.description);
        TakeTag(trimmed, "<copyright>", d.copyright);
        TakeTag(trimmed, "<version>", d.version);
        d.fast = d.fast || TagAtStart(trimmed, "<modal>fast");
        if (TagAtStart(trimmed, "<suffix>"))
            d.suffixes = ReadSuffixBlock(lines, next);
    }
    return d;
}

const char* PatternOf(FilterKind kind) {
    return kind == FilterKind::Import ? kImportFilterPattern : kExportFilterPattern;
}

std::string VersionRefusal(const std::string& fileName) {
    return "ZVX-Extension-Interface seems to be too old for the extension <" + fileName +
           "> !\r\nInstall the newest version of ZVX and try again!";
}

FilterDetails BuiltInDetails(FilterKind kind) {
    return {"", "File Types: *.ZVX",
            kind == FilterKind::Import ? "Imports a part of a ZVX to the current ZVX-Folder"
                                       : "Exports the selection to a new ZVX-File.",
            "Built into ZVX", "Version: 1.00"};
}

std::string OrDefault(const std::string& value, const char* fallback) {
    return value.empty() ? fallback : value;
}

}  // namespace

std::vector<FilterRow> ScanFilters(const Common& common, FilterKind kind) {
    std::vector<FilterRow> rows{
        {kind == FilterKind::Import ? "ZVX-Importer (built-in)" : "ZVX-Exporter (built-in)",
         kBuiltInFilterFile, ""}};
    const std::filesystem::path folder = PluginsFolder(common);
    for (const std::string& name : DeclarationFiles(common, PatternOf(kind))) {
        const FilterDeclaration d = ParseFilter(ReadDeclarationLines(folder / name));
        if (NumericValue(d.requiredVersion) > kExtensionInterfaceVersion) {
            common.screen().message("Version Error!", VersionRefusal(name), MsgButtons::OkOnly,
                                    MsgIcon::Critical);
            continue;
        }
        if (!d.name.empty())
            rows.push_back({d.name, name, d.requiredVersion});
    }
    return rows;
}

std::string FilterCallString(const Common& common, const std::string& fileName) {
    const FilterDeclaration d =
        ParseFilter(ReadDeclarationLines(FindInFolder(PluginsFolder(common), fileName)));
    return AddOnCallString(d.fast ? "fast" : "yes", "", d.exe);
}

FilterDetails ReadFilterDetails(const Common& common, FilterKind kind,
                                const std::string& fileName) {
    if (fileName == kBuiltInFilterFile)
        return BuiltInDetails(kind);
    const FilterDeclaration d =
        ParseFilter(ReadDeclarationLines(FindInFolder(PluginsFolder(common), fileName)));
    return {kind == FilterKind::Export ? d.exe : "",
            d.suffixes.empty() ? "File Types:" : "File Types: " + d.suffixes,
            OrDefault(d.description, "<no description>"), OrDefault(d.copyright, "<no copyright>"),
            d.version.empty() ? "<no version>" : "Version: " + d.version};
}

}  // namespace zvx
