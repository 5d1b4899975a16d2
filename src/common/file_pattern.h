#pragma once
// File-name patterns as the program's file lists match them ("*.*", "*.mp3;*.wav"):
// without regard to case, "*" for any run of characters, "?" for one, "*.*" for every
// name with or without a dot, a ";"-separated list matching when any of its patterns
// does, blanks around each pattern ignored.

#include <string>
#include <string_view>
#include <vector>

namespace zvx {

// A pattern list prepared once, for matching many names (a directory of a walk).
class FilePattern {
  public:
    explicit FilePattern(std::string_view patterns);
    bool matches(std::string_view name) const;

  private:
    struct One {
        std::vector<std::string> characters;  // upper-cased, one character each
        std::string asciiUpper;               // the same, when the pattern is ASCII
        bool ascii = false;
    };
    bool all_ = false;
    std::vector<One> patterns_;
};

bool MatchesFilePattern(std::string_view name, std::string_view patterns);

}  // namespace zvx
