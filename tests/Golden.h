#pragma once

#include "TempDir.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace quillet {

// Compares a file the program wrote, byte for byte, with the file of that name in tests/data, which
// was checked once by hand against the type's published table. With QUILLET_WRITE_GOLDEN set the
// golden file is written first: a new type's file is made that way, then checked before it is
// committed.
inline void expectGoldenFile(const std::string& name, const std::string& written)
{
    const auto goldenFile = std::filesystem::path(QUILLET_TEST_DATA) / name;
    if (std::getenv("QUILLET_WRITE_GOLDEN"))
        std::ofstream(goldenFile, std::ios::binary) << written;
    const std::string golden = TempDir::readFile(goldenFile);
    ASSERT_FALSE(golden.empty()) << "no golden file " << name;
    EXPECT_EQ(written, golden) << name;
}

} // namespace quillet
