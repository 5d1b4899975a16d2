#include "extensions/wait_mode.h"

#include <string>

#include "common/numeric_value.h"
#include "common/text_case.h"

namespace zvx {

namespace {
constexpr double kShortestTimed = 10;
constexpr double kLongestTimed = 10000;
}  // namespace

WaitMode ParseWaitMode(std::string_view modal) {
    const std::string mode = LowerCase(modal);
    WaitMode wait;
    if (mode.empty() || mode == "yes" || mode == "fast") {
        wait.kind = WaitMode::Kind::Lock;
        wait.fast = mode == "fast";
    } else if (mode.front() == 't') {
        const double value = NumericValue(std::string_view(mode).substr(1));
        const bool inRange = value > kShortestTimed && value <= kLongestTimed;
        wait.kind = inRange ? WaitMode::Kind::Timed : WaitMode::Kind::Illegal;
        wait.milliseconds = inRange ? static_cast<int>(RoundHalfEven(value)) : 0;
    }
    return wait;
}

}  // namespace zvx
