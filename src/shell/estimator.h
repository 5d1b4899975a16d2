#pragma once
// The estimate of the time remaining in a long operation (eStimaToR), shown on the
// status bar's third panel as "ETR: ..." and repainted at most every 3 seconds,
// because it is called from the inner loops of adding and searching.

#include <optional>
#include <string>

#include "common/clock.h"

namespace zvx {

class Estimator {
  public:
    explicit Estimator(const Clock& clock) : clock_(clock) {}

    // The operation begins now: the progress start.
    void start();
    double progressStart() const { return progressStart_; }

    // eStimaToR for the progress counters. Gives the text for panel 3 when a new
    // estimate is due; then the progress bar, when shown, takes the two counters and is
    // repainted. Gives nothing for a value of 0, within 3 seconds of the last
    // estimate, for a negative remainder, or when the numbers give no result.
    std::optional<std::string> eStimaToR(long long progressValue, long long progressMaximum);

  private:
    const Clock& clock_;
    double progressStart_ = 0;
    long long lastEstimateTime_ = 0;  // whole seconds since midnight
};

// The estimate text of a number of seconds remaining: "ETR: 59 s", or with one minute
// or more "ETR: 1 m 0 s". One second is added first.
std::string EstimateText(long long remainingSeconds);

}  // namespace zvx
