#pragma once
// How the host waits for an extension it has started, from the declared wait mode
// ("<MODAL>"), compared in lower case.

#include <string_view>

namespace zvx {

struct WaitMode {
    enum class Kind {
        Lock,     // "yes", none or "fast": until the lock file exists, 10 seconds at most
        Timed,    // "t" and milliseconds: exactly that long
        None,     // anything else ("no"): not at all
        Illegal,  // "t" with a number out of range: refused, with the program started
    };
    Kind kind = Kind::None;
    // "fast": the host makes the lock file itself, so the wait ends at its first look.
    bool fast = false;
    int milliseconds = 0;  // Timed only
};

// A "t" mode is accepted for more than 10 and at most 10000 milliseconds: "t10" and
// "t10001" are refused, "t11" and "t10000" accepted. The number is read as any number
// in the program is, so "t5000   " (the blanks of a call string) is 5000.
WaitMode ParseWaitMode(std::string_view modal);

// The wait window's timings. Tests may shorten the 10 seconds; nothing else changes them.
struct WaitTimings {
    int pollMilliseconds = 50;        // Timer1: how often the lock file is looked for
    int timeoutMilliseconds = 10000;  // PHtimeout
};

}  // namespace zvx
