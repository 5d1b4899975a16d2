#pragma once
// The command line of a declaration, made ready to start without a shell. The scans hand
// it over upper-cased while Linux names have case, so the program is looked up without
// regard to case: "/USR/LOCAL/BIN/TAGGER.SH" finds /usr/local/bin/tagger.sh, and
// "TOOLS/RUN.SH" finds PLUGINS/Tools/Run.sh.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace zvx {

// The words of a command line by the shell's quoting rules, with nothing expanded:
// blanks and tabs separate words; '...' keeps everything inside; "..." keeps everything
// but takes a backslash before " \ $ ` as escaping it; elsewhere a backslash keeps the
// next character. An open quote runs to the end of the line.
std::vector<std::string> ShellWords(std::string_view line);

// The path with each component that does not exist as written replaced by an entry of
// its folder that equals it without regard to case; as written where nothing fits.
std::filesystem::path FindWithoutCase(const std::filesystem::path& path);

// The program and its arguments for the declared command. The program is absolute when
// it begins with "/" or the command holds ":\"; otherwise it lies in `pluginsFolder` (a
// leading "\" is gone with the quoting rules). Empty for a command without words.
std::vector<std::string> ExtensionArguments(std::string_view exe,
                                            const std::filesystem::path& pluginsFolder);

}  // namespace zvx
