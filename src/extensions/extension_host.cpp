#include "extensions/extension_host.h"

#include <map>
#include <optional>

#include "common/common.h"
#include "common/text_case.h"
#include "extensions/addon_call.h"
#include "extensions/extension_command.h"
#include "extensions/extension_files.h"
#include "extensions/extension_lists.h"
#include "extensions/lock_file.h"
#include "platform/file_io.h"
#include "ui/command_guard.h"

namespace zvx {

namespace {

constexpr const char* kUserCallEvent = "*USER-CALL*";
constexpr const char* kHomeVariable = "ZVX_HOME";

std::optional<AddOnEventCall> EventCallOf(const std::string& name) {
    static const std::map<std::string, AddOnEventCall, std::less<>> calls{
        {"HARDREFRESH", AddOnEventCall::HardRefresh},
        {"REFRESH", AddOnEventCall::Refresh},
        {"LISTREFRESH", AddOnEventCall::ListRefresh},
        {"FOLDERREFRESH", AddOnEventCall::FolderRefresh},
        {"TOCRESET", AddOnEventCall::TocReset},
    };
    const auto found = calls.find(name);
    return found == calls.end() ? std::nullopt : std::optional(found->second);
}

std::string ExecutingText(const std::string& exe) {
    return "Executing Plug-In (" + UpperCase(exe) + ")...";
}

}  // namespace

ExtensionHost::ExtensionHost(Common& common, ExtensionWindows& windows)
    : common_(common), windows_(windows) {}

bool ExtensionHost::PLUGHALT() {
    if (!LockFileExists(common_))
        return false;
    pluginHalted = true;
    return true;
}

void ExtensionHost::PLUGSTART(const std::string& eventName) {
    ClearLockFile(common_);
    windows_.repaintActive();
    std::vector<ExtensionDeclaration> plugIns;
    RunGuarded(common_, [&] {
        TouchFile(common_.workFile(kPlugInListFile));
        plugIns = ReadPlugInList(common_);
    });
    bool handedOver = false;
    for (const ExtensionDeclaration& plugIn : plugIns)
        fireFor(eventName, plugIn, handedOver);
    windows_.repaintActive();
    common_.screen().status("");
}

void ExtensionHost::fireFor(const std::string& eventName, const ExtensionDeclaration& plugIn,
                            bool& handedOver) {
    // A substring test: the event LOAD is in the list ZVXLOAD#.
    if (plugIn.exe.empty() ||
        UpperCase(plugIn.events).find(UpperCase(eventName) + "#") == std::string::npos)
        return;
    RunGuarded(common_, [&] {
        if (!handedOver)
            HandOver(eventName);
        handedOver = true;
        pluginHalted = false;
        common_.screen().status(ExecutingText(plugIn.exe));
        startAndWait(plugIn.exe, plugIn.modal,
                     {"Plug-In Error!", "Illegal Plug-In-Timeout-Declaration!"});
    });
}

void ExtensionHost::HandOver(const std::string& eventName) {
    WriteHandOverFiles(common_, eventName, windows_.handOverFacts());
}

void ExtensionHost::AddOnStart(const std::string& callString) {
    ClearLockFile(common_);
    const AddOnCall call = SplitAddOnCall(callString);
    HandOver(kUserCallEvent);
    windows_.repaintActive();
    pluginHalted = false;
    common_.screen().status(ExecutingText(call.command));
    if (!startAndWait(call.command, call.modal,
                      {"Add-On Error!", "Illegal Add-On-Timeout-Declaration!"}))
        return;
    common_.screen().status("Initialising Add-On caused events...");
    EventStart(call.events, call.command);
    common_.screen().status("");
}

bool ExtensionHost::startAndWait(const std::string& exe, const std::string& modal,
                                 const Refusal& refusal) {
    const std::vector<std::string> arguments = ExtensionArguments(exe, PluginsFolder(common_));
    ClearLockFile(common_);
    const WaitMode wait = ParseWaitMode(modal);
    if (wait.fast) {
        pluginHalted = true;
        CreateLockFile(common_);
    }
    const std::string home = common_.applicationFolder().string();
    pluginTaskId = programs_.start(arguments, home, {{kHomeVariable, home}});
    switch (wait.kind) {
        case WaitMode::Kind::Lock:
        case WaitMode::Kind::Timed:
            windows_.showWait(LowerCase(exe), wait);
            return true;
        case WaitMode::Kind::Illegal:
            common_.screen().message(refusal.caption, refusal.text, MsgButtons::OkOnly,
                                     MsgIcon::Critical);
            common_.screen().status("");
            return false;
        case WaitMode::Kind::None:
            common_.screen().status("");
            return true;
    }
    return true;
}

void ExtensionHost::EventStart(const std::string& events, const std::string& command) {
    for (const std::string& name : EventCalls(events)) {
        const std::optional<AddOnEventCall> call = EventCallOf(name);
        if (!call) {
            common_.screen().message(
                "Error", "Unknown Event-Call in Add-On \"" + command + "\":\r\n\"" + name + "\"",
                MsgButtons::OkOnly, MsgIcon::None);
            continue;
        }
        try {
            windows_.eventCall(*call);
        } catch (...) {
            // No active document, say: the call fails silently and the next one runs.
        }
    }
}

}  // namespace zvx
