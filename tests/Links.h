#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <system_error>

// Plants a symbolic link for a test, or skips the test where the system makes none: Windows lets only
// privileged users make them (and Wine cannot), so nobody can plant one there either.
#ifdef _WIN32
#define QUILLET_LINK_OR_SKIP(target, at)                                                                     \
    do {                                                                                                     \
        std::error_code linkError;                                                                           \
        std::filesystem::create_symlink(target, at, linkError);                                              \
        if (linkError)                                                                                       \
            GTEST_SKIP() << "this system makes no symbolic link here: " << linkError.message();              \
    } while (false)
#else
#define QUILLET_LINK_OR_SKIP(target, at) std::filesystem::create_symlink(target, at)
#endif
