#include "fatal_error.h"

#include <unistd.h>

#include <cstdio>

namespace zvx::cat {

namespace {

[[noreturn]] void TerminateHandler() {
    PrintFailure(std::current_exception());
    std::fflush(stdout);
    // Unwinding is what failed: no destructor runs on the way out.
    ::_exit(kExitFailure);
}

}  // namespace

void PrintFailure(std::exception_ptr failure) noexcept {
    const char* text = "an unexpected failure ended the run";
    try {
        if (failure)
            std::rethrow_exception(failure);
    } catch (const std::exception& e) {
        text = e.what();
    } catch (...) {
    }
    std::fputs("zvxcat: ", stderr);
    std::fputs(text, stderr);
    std::fputs("\n", stderr);
}

void EndTerminateWithFailure() {
    std::set_terminate(TerminateHandler);
}

}  // namespace zvx::cat
