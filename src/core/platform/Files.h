#pragma once

#include "Result.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quillet {

// Whole-file reading and writing for the user's files. A file is never half-written: the new bytes go
// to a temporary file beside it, are flushed to the disk, and only then renamed over the old one.
class Files {
public:
    // The bytes of a file, refused when it is missing, not a plain file, unreadable or larger than
    // maxBytes.
    Result<std::string> read(const std::filesystem::path& path, std::uintmax_t maxBytes) const;

    // Replaces (or creates) the file with exactly these bytes. A read-only file is left alone.
    Status replace(const std::filesystem::path& path, std::string_view bytes) const;

    // Copies a file to a new name, never over an existing file.
    Status copyIfAbsent(const std::filesystem::path& from, const std::filesystem::path& to) const;

    // Makes every later write fail once this many bytes of it are written, as a full disk would.
    void failWritesAfter(std::optional<std::uintmax_t> bytes) { m_failAfter = bytes; }

private:
    std::optional<std::uintmax_t> m_failAfter;
};

// The temporary file that `Files::replace` writes before renaming it into place.
std::filesystem::path temporaryFor(const std::filesystem::path& path);

} // namespace quillet
