#pragma once
// File-name patterns as the program's file lists match them ("*.*", "*.mp3;*.wav"):
// without regard to case, "*" for any run of characters, "?" for one, "*.*" for every
// name with or without a dot, a ";"-separated list matching when any of its patterns
// does, blanks around each pattern ignored.

#include <string_view>

namespace zvx {

bool MatchesFilePattern(std::string_view name, std::string_view patterns);

}  // namespace zvx
