#pragma once
// The program's command line: one text, the path of one document, spaces included.
// Nothing in it is parsed as an option.

#include <filesystem>
#include <string>

namespace zvx {

// argv[1] to argv[argc-1] joined by single blanks; empty without arguments.
std::string JoinArguments(int argc, char** argv);

// A leading double quote goes; then a trailing one goes, whether or not a leading one
// stood there. Nothing else changes: "\"a b.zvx\"" and "a b.zvx\"" both give "a b.zvx".
std::string ApplyQuoteRule(std::string commandLine);

// A relative path made absolute against `cwd`, the starting process's working folder,
// so that a second process can hand it to the running one; its "." and ".." steps are
// resolved as text. An absolute path is kept as it stands, an empty path stays empty.
std::string AbsoluteDocumentPath(const std::string& path, const std::filesystem::path& cwd);

}  // namespace zvx
