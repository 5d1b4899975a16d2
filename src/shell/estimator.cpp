#include "shell/estimator.h"

#include <cmath>

#include "common/numeric_value.h"

namespace zvx {

namespace {

constexpr long long kSecondsBetweenEstimates = 3;
// Beyond this a remainder has no whole-number value: the estimate is dropped.
constexpr double kLargestWholeNumber = 9.2e18;

}  // namespace

void Estimator::start() {
    progressStart_ = clock_.secondsSinceMidnight();
}

std::optional<std::string> Estimator::eStimaToR(long long progressValue,
                                                long long progressMaximum) {
    const double now = clock_.secondsSinceMidnight();
    const long long elapsedSinceEstimate = RoundHalfEven(now - lastEstimateTime_);
    if (progressValue == 0)
        return std::nullopt;
    const double remaining = (now - progressStart_) / static_cast<double>(progressValue) *
                             static_cast<double>(progressMaximum - progressValue);
    if (!(std::fabs(remaining) < kLargestWholeNumber))
        return std::nullopt;
    const long long remainingSeconds = RoundHalfEven(remaining);
    if (elapsedSinceEstimate < kSecondsBetweenEstimates || remainingSeconds < 0)
        return std::nullopt;
    lastEstimateTime_ = RoundHalfEven(now);
    return EstimateText(remainingSeconds);
}

std::string EstimateText(long long remainingSeconds) {
    const long long seconds = remainingSeconds + 1;
    if (seconds < 60)
        return "ETR: " + std::to_string(seconds) + " s";
    return "ETR: " + std::to_string(seconds / 60) + " m " + std::to_string(seconds % 60) + " s";
}

}  // namespace zvx
