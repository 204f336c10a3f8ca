#pragma once

#include "FileSystem.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quillet {

// Paths reach the program written the old way, with backslashes ("C:\fs2000\aircraft\b737\aircraft.cfg")
// and in whatever letter case the user typed. These functions find the real file on any file system:
// both slashes separate, and each part matches a directory entry without regard to letter case
// (an exact match is preferred). A relative path starts from `base`. They look on the machine's file
// system unless given another.

// The existing file or folder the path names, or nothing.
std::optional<std::filesystem::path> findPath(std::string_view path, const std::filesystem::path& base = {},
                                              const FileSystem& system = systemFiles());

// Where to write the path: the existing parts as found, the rest as written.
std::filesystem::path resolvePath(std::string_view path, const std::filesystem::path& base = {},
                                  const FileSystem& system = systemFiles());

// Whether a file (not a folder) of that name exists.
bool fileExists(std::string_view path, const std::filesystem::path& base = {},
                const FileSystem& system = systemFiles());

// Whether the text names one entry inside a folder rather than a path: not empty, no slash, backslash
// or drive colon, and not made of dots and blanks alone ("..", and what Windows trims to it).
bool isSingleName(std::string_view name);

// The text of a path for a message: the way the user wrote it.
std::string displayPath(const std::filesystem::path& path);
// The same between double quotes, as messages name files.
std::string quotedPath(const std::filesystem::path& path);

// Text inside the program is UTF-8 wherever it came from; a path holds what the system's calls take,
// wide characters on Windows, where a plain string would be read in the local code page instead and a
// folder such as "Zoë" would not be found. Every conversion between the two goes through these.
std::filesystem::path pathFromUtf8(std::string_view text);
std::string utf8Of(const std::filesystem::path& path);

// ASCII letters folded to lower case; other bytes unchanged.
std::string lowerAscii(std::string_view text);

} // namespace quillet
