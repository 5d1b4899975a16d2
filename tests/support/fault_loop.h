#pragma once
// Runs a path once for each write (or opening for writing) it makes, with that one
// failing, until a run in which no fault fired.

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "platform/file_faults.h"

namespace zvx::test {

struct FaultKind {
    FileFault kind;
    int err;
};

// A full disk on a write, a refused permission on an opening.
inline constexpr FaultKind kFaultKinds[] = {{FileFault::Write, ENOSPC},
                                            {FileFault::OpenForWriting, EACCES}};

// Calls `attempt(n)` for n = 1, 2, ... while it returns true. An attempt makes its
// fixture, arms an InjectedFileFault for the n-th operation, runs the path, checks the
// outcome and returns whether the fault fired. The number of faults that fired.
template <class Attempt>
int ForEachFault(Attempt attempt) {
    constexpr int kMost = 500;
    int n = 1;
    for (; n < kMost; ++n) {
        SCOPED_TRACE("the operation that fails: " + std::to_string(n));
        if (!attempt(n))
            break;
    }
    EXPECT_LT(n, kMost) << "the path never stopped failing";
    return n - 1;
}

}  // namespace zvx::test
