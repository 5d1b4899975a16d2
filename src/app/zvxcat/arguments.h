#pragma once
// The arguments of one command: its positional texts and the "--" flags it knows.

#include <filesystem>
#include <map>
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
    // Options with a value, by their name: every value given, in order.
    std::map<std::string, std::vector<std::string>> values;
    bool help = false;

    bool has(std::string_view flag) const { return flags.count(std::string(flag)) > 0; }
    // The value of an option such as "--icon" (the last one when it was given more than
    // once), or null when it was not given.
    const std::string* value(std::string_view option) const {
        auto found = values.find(std::string(option));
        return found == values.end() ? nullptr : &found->second.back();
    }
    // Every value of an option that may be given more than once ("--name"), in order.
    std::vector<std::string> all(std::string_view option) const {
        auto found = values.find(std::string(option));
        return found == values.end() ? std::vector<std::string>() : found->second;
    }
};

// Splits `args` into positional texts and flags. "--help" is always known; after "--"
// every argument is positional, so that a file may be called "--force". Only texts that
// start with "--" are flags, so "-5" is a value. A known flag listed with a trailing "="
// ("--icon=") takes a value, given as "--icon 5" or "--icon=5"; the next argument is its
// value whatever it looks like. Throws UsageError on an unknown flag or a missing value.
Arguments ParseArguments(const std::vector<std::string>& args,
                         const std::vector<std::string_view>& knownFlags);

// Throws UsageError unless the number of positional texts lies within the bounds.
void RequirePositionalCount(const Arguments& arguments, size_t least, size_t most);

// A native path argument, made absolute against the working folder.
std::filesystem::path NativePathArgument(const std::string& text);

// A native path argument that names a file to add, made absolute the same way, but with
// a last name "." or ".." kept as given: "n/." names the "." the insert list passes
// over, not a file "n".
std::filesystem::path NativeFileArgument(const std::string& text);

}  // namespace zvx::cat
