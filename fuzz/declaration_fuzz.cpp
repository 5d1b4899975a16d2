// Any bytes, taken as the one declaration of each kind in PLUGINS (a.zvp, a.zva, a.zvi,
// a.zve), go through the start-up's list building, the options dialog's scans, the
// information box and the filter scans, and what the host makes of the records: the
// command's words, the wait mode, the call string and its event calls, the menu items and
// shortcuts. A record read back from a list file is the record written, so no field broke
// its line; a listed caption fits its 30 characters, an add-on's events hold no "-", and
// its call string splits back into the events and the command.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "common/common.h"
#include "common/text_case.h"
#include "extensions/addon_call.h"
#include "extensions/addon_menus.h"
#include "extensions/extension_command.h"
#include "extensions/extension_files.h"
#include "extensions/extension_info.h"
#include "extensions/extension_lists.h"
#include "extensions/filter_scan.h"
#include "extensions/options_scans.h"
#include "extensions/wait_mode.h"
#include "fuzz_check.h"
#include "fuzz_folder.h"
#include "platform/file_error.h"
#include "platform/file_io.h"
#include "silent_screen.h"

namespace {

using zvx::fuzz::Require;

bool SameRecord(const zvx::ExtensionDeclaration& a, const zvx::ExtensionDeclaration& b) {
    return a.exe == b.exe && a.events == b.events && a.modal == b.modal && a.menu == b.menu &&
           a.caption == b.caption;
}

void CheckHostParts(const zvx::ExtensionDeclaration& d, bool addOn) {
    zvx::ExtensionArguments(d.exe, "/nonexistent/PLUGINS");
    zvx::ParseWaitMode(d.modal);
    const zvx::AddOnCall call = zvx::SplitAddOnCall(zvx::AddOnCallString(d.modal, d.events, d.exe));
    Require(!addOn || (call.events == d.events && call.command == d.exe),
            "a call string splits back into its events and command");
    zvx::EventCalls(call.events);
}

void CheckReadBack(const zvx::ExtensionListBuild& build,
                   const std::vector<zvx::ExtensionDeclaration>& read, bool addOn) {
    Require(read.size() == build.listed.size(), "the list file holds one record a listing");
    for (size_t i = 0; i < read.size(); ++i) {
        zvx::ExtensionDeclaration written = build.listed[i].declaration;
        if (!addOn)
            written.menu = written.caption = "";
        Require(SameRecord(read[i], written), "a record reads back as written");
        Require(!addOn || zvx::Characters(written.caption).size() <= zvx::kMaxCaptionLength,
                "a listed caption fits");
        Require(!addOn || written.events.find('-') == std::string::npos,
                "a listed add-on's events hold no \"-\"");
        CheckHostParts(written, addOn);
    }
}

void ScanAll(const zvx::Common& common) {
    const zvx::ExtensionListBuild plugIns = zvx::BuildPlugInList(common, nullptr);
    CheckReadBack(plugIns, zvx::ReadPlugInList(common), false);
    const zvx::ExtensionListBuild addOns = zvx::BuildAddOnList(common, nullptr);
    CheckReadBack(addOns, zvx::ReadAddOnList(common), true);
    zvx::AddOnMenuItems(zvx::ReadAddOnList(common));
    zvx::AddOnShortcuts(common, nullptr);
    zvx::PLUGini(common, nullptr);
    zvx::Addini(common, nullptr);
    zvx::ConfigInfo(common, "A.ZVP", "config");
    zvx::ConfigInfo(common, "a.zva", "info");
    for (zvx::FilterKind kind : {zvx::FilterKind::Import, zvx::FilterKind::Export}) {
        for (const zvx::FilterRow& row : zvx::ScanFilters(common, kind))
            zvx::ReadFilterDetails(common, kind, row.fileName);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static zvx::fuzz::SilentScreen screen;
    const std::filesystem::path& folder = zvx::fuzz::FuzzFolder();
    zvx::Common common(folder, folder, screen);
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    try {
        const std::filesystem::path plugins = zvx::PluginsFolder(common);
        std::filesystem::create_directories(plugins);
        for (const char* name : {"a.zvp", "a.zva", "a.zvi", "a.zve"}) {
            zvx::WriteEmptyFile(plugins / name);
            zvx::WriteFileBytes(plugins / name, 0, bytes);
        }
        ScanAll(common);
    } catch (const zvx::FileError&) {
        // Only a failing file may end a run early.
    }
    return 0;
}
