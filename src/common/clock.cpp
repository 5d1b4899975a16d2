#include "common/clock.h"

#include <chrono>
#include <ctime>

namespace zvx {

double SystemClock::secondsSinceMidnight() const {
    using namespace std::chrono;
    const auto now = system_clock::now();
    const std::time_t seconds = system_clock::to_time_t(now);
    std::tm local{};
    localtime_r(&seconds, &local);
    const double fraction = duration<double>(now - system_clock::from_time_t(seconds)).count();
    return local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec + fraction;
}

}  // namespace zvx
