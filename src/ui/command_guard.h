#pragma once
// The one handler under which every command and event handler of the window program
// runs: whatever fails inside is told in the system's error box, and the program goes
// on. Nothing a command throws reaches the event loop or main().

#include <exception>
#include <functional>
#include <string>

namespace zvx {

class Common;

inline constexpr const char* kErrorBoxCaption = "ZVX-Error!";

// What the error box says of a failure: the program's error number and the text.
struct ErrorReport {
    int number = 0;
    std::string text;
};

// The report of a caught exception: a file error keeps its number, an operating-system
// error is numbered by its meaning, a lack of memory is 7 and anything else 51.
ErrorReport ReportOf(std::exception_ptr error);

// "Error N: text", the box's text.
std::string ErrorBoxText(const ErrorReport& report);

// Shows the error box for `error`, then clears the status line and the progress, so
// that the program stands as it did before the failed command.
void ShowErrorBox(Common& common, std::exception_ptr error);

// Runs `action` under the handler; false when it failed (the box has been shown).
bool RunGuarded(Common& common, const std::function<void()>& action);

}  // namespace zvx
