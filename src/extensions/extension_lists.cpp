#include "extensions/extension_lists.h"

#include <filesystem>
#include <string_view>

#include "common/common.h"
#include "common/field_text.h"
#include "extensions/extension_files.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "store/settings.h"

namespace zvx {

namespace {

struct ListShape {
    ExtensionKind kind;
    const char* word;  // in the texts the scan shows
    const char* listFile;
    const char* pattern;
    const char* disableKey;
    size_t fieldsPerRecord;
};

constexpr ListShape kPlugIns{ExtensionKind::PlugIn, "Plug-In",         kPlugInListFile,
                             kPlugInPattern,        kPlugInDisableKey, 3};
constexpr ListShape kAddOns{ExtensionKind::AddOn, "Add-On",         kAddOnListFile,
                            kAddOnPattern,        kAddOnDisableKey, 5};

const ListShape& ShapeOf(ExtensionKind kind) {
    return kind == ExtensionKind::PlugIn ? kPlugIns : kAddOns;
}

// The fields of a record in the order of its lines.
std::vector<std::string*> RecordFields(ExtensionKind kind, ExtensionDeclaration& d) {
    if (kind == ExtensionKind::PlugIn)
        return {&d.exe, &d.events, &d.modal};
    return {&d.menu, &d.exe, &d.caption, &d.events, &d.modal};
}

// A value may hold a lone CR (only LF and CR LF end a declaration's line), which would
// break the record's line in two.
ExtensionDeclaration Cleaned(ExtensionDeclaration d) {
    for (std::string* field : {&d.exe, &d.modal, &d.events, &d.menu, &d.caption, &d.name})
        *field = CleanFieldText(*field);
    return d;
}

ExtensionListBuild BuildList(const Common& common, const ListShape& shape,
                             const ScanTextSink& show) {
    const std::filesystem::path listPath = common.workFile(shape.listFile);
    WriteEmptyFile(listPath);
    AppendWriter writer(listPath);
    ExtensionListBuild build;
    const std::filesystem::path folder = PluginsFolder(common);
    for (const std::string& name : DeclarationFiles(common, shape.pattern)) {
        if (show)
            show(std::string("Loading ") + shape.word + ": " + name);
        if (ReadSetting(common, DeclarationKey(shape.disableKey, name), "NO").isYes()) {
            if (show)
                show(SkippingText(shape.kind, name));
            build.disabled.push_back(name);
            continue;
        }
        const DeclarationScan scan =
            ScanDeclaration(shape.kind, name, ReadDeclarationLines(folder / name));
        if (!scan.accepted()) {
            common.screen().message(kRefusalCaption, scan.refusal, MsgButtons::OkOnly,
                                    MsgIcon::Critical);
            continue;
        }
        ListedExtension listed{name, Cleaned(scan.declaration)};
        for (const std::string* field : RecordFields(shape.kind, listed.declaration))
            writer.writeLine(*field);
        build.listed.push_back(std::move(listed));
    }
    writer.close();
    return build;
}

std::vector<ExtensionDeclaration> ReadList(const Common& common, const ListShape& shape) {
    const std::filesystem::path listPath = common.workFile(shape.listFile);
    std::vector<ExtensionDeclaration> records;
    std::error_code ec;
    if (!std::filesystem::exists(listPath, ec))
        return records;
    LineReader reader(listPath);
    size_t field = 0;
    for (std::string_view line; reader.next(line); field = (field + 1) % shape.fieldsPerRecord) {
        if (field == 0)
            records.emplace_back();
        *RecordFields(shape.kind, records.back())[field] = line;
    }
    return records;
}

}  // namespace

ExtensionListBuild BuildPlugInList(const Common& common, const ScanTextSink& show) {
    return BuildList(common, kPlugIns, show);
}

ExtensionListBuild BuildAddOnList(const Common& common, const ScanTextSink& show) {
    return BuildList(common, kAddOns, show);
}

std::string SkippingText(ExtensionKind kind, const std::string& fileName) {
    return std::string("Skipping ") + ShapeOf(kind).word + ": " + fileName + "(Disabled by User)";
}

std::vector<ExtensionDeclaration> ReadPlugInList(const Common& common) {
    return ReadList(common, kPlugIns);
}

std::vector<ExtensionDeclaration> ReadAddOnList(const Common& common) {
    return ReadList(common, kAddOns);
}

}  // namespace zvx
