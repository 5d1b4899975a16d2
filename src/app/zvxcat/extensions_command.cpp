#include <algorithm>
#include <iostream>
#include <string_view>

#include "command_list.h"
#include "common/common.h"
#include "extensions/extension_lists.h"
#include "extensions/filter_scan.h"

namespace zvx::cat {

namespace {

constexpr std::string_view kKinds[] = {"plugin", "addon", "import", "export"};

// A value may hold a tab, which would split the record into more fields.
std::string Field(std::string_view value) {
    std::string field(value);
    std::replace(field.begin(), field.end(), '\t', ' ');
    return field;
}

void PrintRecord(std::ostream& out, std::initializer_list<std::string_view> fields) {
    std::string_view separator;
    for (std::string_view field : fields) {
        out << separator << Field(field);
        separator = "\t";
    }
    out << "\n";
}

void PrintList(std::string_view kind, const ExtensionListBuild& build, std::ostream& out) {
    const bool addOn = kind == "addon";
    for (const ListedExtension& listed : build.listed) {
        const ExtensionDeclaration& d = listed.declaration;
        if (addOn)
            PrintRecord(out, {kind, listed.fileName, d.exe, d.events, d.modal, d.menu, d.caption});
        else
            PrintRecord(out, {kind, listed.fileName, d.exe, d.events, d.modal});
    }
    for (const std::string& name : build.disabled) {
        std::cerr << "zvxcat: "
                  << SkippingText(addOn ? ExtensionKind::AddOn : ExtensionKind::PlugIn, name)
                  << "\n";
    }
}

void PrintFilters(std::string_view kind, const std::vector<FilterRow>& rows, std::ostream& out) {
    for (const FilterRow& row : rows) {
        if (row.fileName != kBuiltInFilterFile)
            PrintRecord(out, {kind, row.fileName, row.name, row.requiredVersion});
    }
}

void CheckExtensions(const Arguments& arguments) {
    RequirePositionalCount(arguments, 0, 0);
    const std::string* kind = arguments.value("--kind");
    if (kind && std::find(std::begin(kKinds), std::end(kKinds), *kind) == std::end(kKinds))
        throw UsageError("unknown kind '" + *kind + "'");
}

void RunExtensions(const Arguments& arguments, Common& common, std::ostream& out) {
    const std::string* only = arguments.value("--kind");
    for (std::string_view kind : kKinds) {
        if (only && kind != *only)
            continue;
        if (kind == "plugin")
            PrintList(kind, BuildPlugInList(common, nullptr), out);
        else if (kind == "addon")
            PrintList(kind, BuildAddOnList(common, nullptr), out);
        else
            PrintFilters(
                kind,
                ScanFilters(common, kind == "import" ? FilterKind::Import : FilterKind::Export),
                out);
    }
}

}  // namespace

const Command& ExtensionsCommand() {
    static const Command command{
        "extensions",
        "list what the declarations in PLUGINS declare",
        "Usage: zvxcat extensions [--kind plugin|addon|import|export]\n"
        "Scans the declarations in the PLUGINS folder of the application folder as the\n"
        "window program does: plug-ins (*.zvp) and add-ons (*.zva) as its start does,\n"
        "import (*.zvi) and export (*.zve) filters as its exchange dialogs do. Prints one\n"
        "record a line, fields separated by tabs:\n"
        "  plugin  FILE EXE EVENTS MODAL\n"
        "  addon   FILE EXE EVENTS MODAL MENU CAPTION\n"
        "  import  FILE NAME REQUIRED-VERSION (export the same)\n"
        "Every refused declaration, and every one disabled in zvx.ini, is told on stderr.\n"
        "--kind lists one kind only.\n",
        {"--kind="},
        CheckExtensions,
        RunExtensions};
    return command;
}

}  // namespace zvx::cat
