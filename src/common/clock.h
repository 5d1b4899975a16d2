#pragma once
// The time of day as the progress estimate reads it; tests replace it.

namespace zvx {

class Clock {
  public:
    virtual ~Clock() = default;
    // Seconds since local midnight, with fractions.
    virtual double secondsSinceMidnight() const = 0;
};

// The local time of the machine.
class SystemClock final : public Clock {
  public:
    double secondsSinceMidnight() const override;
};

}  // namespace zvx
