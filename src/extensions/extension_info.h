#pragma once
// What the options dialog's Info and Config buttons do with a plug-in or add-on
// (ConfigInfo): run the command the declaration names for it, or tell what is known.
// Tags are matched without regard to case here, and every value keeps the case of the
// file.

#include <optional>
#include <string>

namespace zvx {

class Common;

inline constexpr const char* kUnknownInfo = "<UNKNOWN>";

struct ExtensionInfo {
    // "<UNKNOWN>" when the declaration has no such tag.
    std::string info = kUnknownInfo;
    std::string config = kUnknownInfo;
    std::string version = kUnknownInfo;
    std::string copyright = kUnknownInfo;
    std::string description = kUnknownInfo;
    std::string name = kUnknownInfo;
    bool hasInfo = false;
    bool hasConfig = false;
};

// The declaration `fileName` of the PLUGINS folder, found without regard to case; a
// missing file knows nothing.
ExtensionInfo ReadExtensionInfo(const Common& common, const std::string& fileName);

// The five lines of the information box.
std::string ExtensionInfoText(const ExtensionInfo& info, const std::string& fileName);

// With the mode "config" the "<CONFIG>" command, with any other mode the "<INFO>" command,
// as an add-on call without wait mode or events, for the caller to run. When the
// declaration names no such command, the box is shown instead ("This Extension is not
// configurable!", or the information box) and nothing is given.
std::optional<std::string> ConfigInfo(const Common& common, const std::string& fileName,
                                      const std::string& mode);

}  // namespace zvx
