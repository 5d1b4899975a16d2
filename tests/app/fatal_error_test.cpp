#include "fatal_error.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace zvx::cat {
namespace {

[[noreturn]] void Fail(bool standard) {
    if (standard)
        throw std::runtime_error("the catalogue went away");
    throw 42;
}

// An exception that leaves a noexcept function ends in std::terminate.
void FailInNoexcept(bool standard) noexcept {
    Fail(standard);
}

TEST(FatalError, ATerminateEndsWithTheMessageAndStatusOne) {
    EndTerminateWithFailure();
    EXPECT_EXIT(FailInNoexcept(true), testing::ExitedWithCode(kExitFailure),
                "zvxcat: the catalogue went away");
    EXPECT_EXIT(FailInNoexcept(false), testing::ExitedWithCode(kExitFailure),
                "zvxcat: an unexpected failure ended the run");
}

}  // namespace
}  // namespace zvx::cat
