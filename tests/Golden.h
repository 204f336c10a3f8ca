#pragma once

#include "TempDir.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

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

// Compares what the program told the user, a message a line, with a golden file. The test's folder
// reads as <dir>, and the rest of a quoted path below it with forward slashes, so that one file holds
// the messages of every system.
inline void expectGoldenMessages(const std::string& name, const std::vector<std::string>& messages,
                                 const std::filesystem::path& dir)
{
    const std::string folder = dir.string();
    std::string text;
    for (std::string message : messages) {
        for (auto at = message.find(folder); at != std::string::npos; at = message.find(folder, at)) {
            message.replace(at, folder.size(), "<dir>");
            for (at += 5; at < message.size() && message[at] != '"'; ++at)
                message[at] = message[at] == '\\' ? '/' : message[at];
        }
        text += message + "\n";
    }
    expectGoldenFile(name, text);
}

} // namespace quillet
