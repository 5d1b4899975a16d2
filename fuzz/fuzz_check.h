#pragma once
// A broken rule in a fuzz run: report it and abort, so that the fuzzer keeps the input.

#include <cstdio>
#include <cstdlib>

namespace zvx::fuzz {

inline void Require(bool condition, const char* rule) {
    if (condition)
        return;
    std::fprintf(stderr, "zvx fuzz: broken rule: %s\n", rule);
    std::abort();
}

}  // namespace zvx::fuzz
