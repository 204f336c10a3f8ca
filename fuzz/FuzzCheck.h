#pragma once

#include <cstdio>
#include <cstdlib>

// A broken property stops the run where it broke, so that the fuzzer keeps the input; the message
// tells which property it was.
#define QUILLET_FUZZ_CHECK(condition)                                                                        \
    do {                                                                                                     \
        if (!(condition)) {                                                                                  \
            std::fprintf(stderr, "%s:%d: property broken: %s\n", __FILE__, __LINE__, #condition);            \
            std::abort();                                                                                    \
        }                                                                                                    \
    } while (false)
