#pragma once
// Progress of a long pass over a catalogue. Values go on to the screen only when the bar
// moves by a thousandth of its length, so that a pass over a million lines does not
// redraw it a million times.

#include <algorithm>

#include "common/common.h"

namespace zvx {

class ProgressSteps {
  public:
    // Sets the bar's maximum.
    ProgressSteps(Common& common, long long maximum)
        : common_(common), step_(std::max(1LL, maximum / 1000)) {
        common_.setProgressMax(maximum);
    }

    void set(long long value) {
        if (value < next_)
            return;
        common_.setProgress(value);
        next_ = value + step_;
    }

  private:
    Common& common_;
    long long step_;
    long long next_ = 0;
};

}  // namespace zvx
