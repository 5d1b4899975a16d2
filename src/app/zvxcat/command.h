#pragma once
// One zvxcat command: its name, help texts, flags and the two steps of a run. `check`
// looks at the arguments before anything is set up, so that a wrong call creates no
// folder; `run` does the work and prints its results on `out`.

#include <ostream>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "arguments.h"

namespace zvx {
class Common;
}

namespace zvx::cat {

// A command that cannot do what it was asked (exit status 1).
class ToolFailure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct Command {
    const char* name;
    const char* summary;  // one line for "zvxcat --help"
    const char* usage;    // the lines of "zvxcat COMMAND --help"
    std::vector<std::string_view> flags;
    // Throws UsageError when the arguments do not fit the command.
    void (*check)(const Arguments& arguments);
    void (*run)(const Arguments& arguments, Common& common, std::ostream& out);
};

}  // namespace zvx::cat
