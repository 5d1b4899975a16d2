#pragma once
// The arguments of one command: its positional texts and the "--" flags it knows.

#include <filesystem>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace zvx::cat {

// Wrong use of the tool: an unknown command, flag or a wrong number of arguments.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct Arguments {
    std::vector<std::string> positional;
    std::set<std::string> flags;
    bool help = false;

    bool has(std::string_view flag) const { return flags.count(std::string(flag)) > 0; }
};

// Splits `args` into positional texts and flags. "--help" is always known; after "--"
// every argument is positional, so that a file may be called "--force". Only texts that
// start with "--" are flags, so "-5" is a value. Throws UsageError on an unknown flag.
Arguments ParseArguments(const std::vector<std::string>& args,
                         const std::vector<std::string_view>& knownFlags);

// Throws UsageError unless the number of positional texts lies within the bounds.
void RequirePositionalCount(const Arguments& arguments, size_t least, size_t most);

// A native path argument, made absolute against the working folder.
std::filesystem::path NativePathArgument(const std::string& text);

}  // namespace zvx::cat
