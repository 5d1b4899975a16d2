#pragma once
// The last word of a zvxcat run that failed where no command could answer: an exception
// that is no std::exception, or one that ends the program through std::terminate (thrown
// out of a destructor or a noexcept function). Either way the run ends with a message on
// stderr and exit status 1, never with an abort. A work folder that a terminate leaves
// behind is cleared by the next run, as after a kill.

#include <exception>

namespace zvx::cat {

inline constexpr int kExitFailure = 1;

// "zvxcat: " and the text of the failure, on stderr. Neither throws nor allocates.
void PrintFailure(std::exception_ptr failure) noexcept;

// Makes std::terminate print the failure and end the process with kExitFailure.
void EndTerminateWithFailure();

}  // namespace zvx::cat
