#pragma once
// Plug-in (.zvp) and add-on (.zva) declarations. A declaration is a set of tag lines in
// any order: each line is trimmed of blanks, a tag counts only at the start of the
// trimmed line, its value is the rest of that line, and the last value of a tag wins.
// Lines with no known tag are comments. These scans take the tag and every value from
// the upper-cased line, so that "<exe>c:\a.exe" gives "C:\A.EXE"; only the caption of an
// add-on keeps the case of the file.
//
// "<EVENTS>" opens a block of event names, one a line, up to the line that begins
// "</EVENTS>" or the end of the file. A block may take 30 lines, its closing line among
// them. In a plug-in the blocks add up; in an add-on each block starts the list anew.
//
// These scans never test "<REQUIRES>": a plug-in or add-on that asks for a newer
// extension interface loads all the same (only the filter scans compare the version).

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace zvx {

enum class ExtensionKind { PlugIn, AddOn };

struct ExtensionDeclaration {
    std::string exe;
    // The wait mode as declared (upper case), or "yes" when none was declared.
    std::string modal;
    // Each name followed by "#": "ZVXLOAD#ZVXQUIT#".
    std::string events;
    std::string menu;     // add-ons only
    std::string caption;  // add-ons only, in the case of the file
    std::string name;
};

// One declaration scanned: accepted, or refused with the text of its box.
struct DeclarationScan {
    ExtensionDeclaration declaration;
    std::string refusal;  // the text of the refusal box; empty when accepted
    bool accepted() const { return refusal.empty(); }
};

// The caption of every refusal box of these scans (critical icon).
inline constexpr const char* kRefusalCaption = "Error";
// The longest caption an add-on may have, in characters.
inline constexpr size_t kMaxCaptionLength = 30;

// Scans the lines of the declaration file `fileName` (the name goes into a refusal's
// text).
DeclarationScan ScanDeclaration(ExtensionKind kind, std::string_view fileName,
                                const std::vector<std::string>& lines);

// Whether a trimmed line begins with the tag, letters compared without regard to case.
bool TagAtStart(std::string_view trimmed, std::string_view tag);

// The lines of a declaration file, read to its end; a file that cannot be read has none.
std::vector<std::string> ReadDeclarationLines(const std::filesystem::path& path);

}  // namespace zvx
