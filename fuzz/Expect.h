#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the program, so that the fuzzer keeps the input, when @p holds is false.
inline void Expect(bool holds, const char* rule)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken rule: %s\n", rule);
    std::abort();
}
