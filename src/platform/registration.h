#pragma once
// What the program tells the desktop about itself: where it lives and which versions it
// speaks (for extensions and other programs), and that it opens *.zvx files.
//
// The program information goes to $XDG_CONFIG_HOME/Morrowfen/ZVX.conf (by default
// ~/.config), LF lines in this form, rewritten whole at each start:
//
//   [Information]
//   ZVXPath=<application folder>
//   ZVXVersion=<major>.<minor>.<revision>
//   InterfaceVersion=110
//   FileVersion=1
//
// A value stands as it is behind the "=", without quotes or escapes. The file types are
// registered the freedesktop way under $XDG_DATA_HOME (by default ~/.local/share): a
// shared-mime-info package mime/packages/zvx.xml and the entry applications/zvx.desktop.

#include <filesystem>
#include <string>
#include <string_view>

namespace zvx {

class Common;

inline constexpr const char* kCatalogueMimeType = "application/x-zvx-catalogue";
// The version of the extension interface the program offers.
inline constexpr const char* kInterfaceVersion = "110";

struct RegistrationEnvironment {
    std::filesystem::path programPath;  // the program that opens a .zvx file
    std::string xdgConfigHome;          // XDG_CONFIG_HOME
    std::string xdgDataHome;            // XDG_DATA_HOME
    std::string home;                   // HOME
    std::string searchPath;             // PATH, where the database tools are looked up
};

RegistrationEnvironment CurrentRegistrationEnvironment(const std::filesystem::path& programPath);

std::filesystem::path ProgramInfoFile(const RegistrationEnvironment& env);
std::filesystem::path MimePackageFile(const RegistrationEnvironment& env);
std::filesystem::path DesktopEntryFile(const RegistrationEnvironment& env);

// Writes the program information. Called once at each start; a failed write is ignored,
// since nothing in the program reads it back.
void PublishRegistryInfo(const Common& common, const RegistrationEnvironment& env,
                         std::string_view version = ZVX_VERSION);

// Registers *.zvx for the program, refreshes the desktop's databases when their tools
// exist, and reports "FileType-Registration completed." whatever failed on the way.
void RegisterFileTypes(const Common& common, const RegistrationEnvironment& env);

}  // namespace zvx
