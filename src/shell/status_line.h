#pragma once
// The status operation: the text on the status bar's second panel, which also marks
// the start and the end of a long operation. The first non-empty text after the idle
// state begins an operation, the empty text ends it. What a call changes on screen
// comes back as a StatusUpdate for the window to apply.

#include <optional>
#include <string>
#include <string_view>

#include "shell/estimator.h"

namespace zvx {

struct StatusUpdate {
    // The same text again: only `estimate` applies, nothing else changes.
    bool repeated = false;
    // eStimaToR's text for panel 3, when it gave one (see Estimator::eStimaToR).
    std::optional<std::string> estimate;
    std::string panelText;     // panel 2: "State: " and the text
    bool busy = false;         // the busy pointer; otherwise the normal pointer
    bool pollTimerOn = false;  // the command poll timer runs; no document loads while off
    bool operationStarts = false;
    bool showDate = false;    // the date goes to panel 3, and the status bar is refreshed
    bool refreshNow = false;  // repaint the status bar before the caller blocks the thread
};

class StatusLine {
  public:
    // Starts in the idle state, "State: " and kIdleStatusText.
    explicit StatusLine(Estimator& estimator);

    // status: sets, repeats or (with the empty text) clears the status text. The
    // progress counters decide whether a text after the idle state continues a running
    // operation (value above 0) or begins one, which takes the estimator's start time.
    StatusUpdate status(std::string_view text, long long progressValue, long long progressMaximum);

    // What panel 2 shows now.
    const std::string& panelText() const { return panelText_; }

  private:
    Estimator& estimator_;
    std::string panelText_;
};

}  // namespace zvx
