#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace quillet {

// What a path names, as far as the file layer needs to know it.
struct FileStatus {
    std::filesystem::file_type type = std::filesystem::file_type::not_found;
    std::uintmax_t size = 0;
    std::filesystem::perms permissions = std::filesystem::perms::unknown;

    bool exists() const
    {
        return type != std::filesystem::file_type::not_found && type != std::filesystem::file_type::none;
    }
    bool isFile() const { return type == std::filesystem::file_type::regular; }
    bool isFolder() const { return type == std::filesystem::file_type::directory; }
    bool isLink() const { return type == std::filesystem::file_type::symlink; }
};

// The single steps that `Files` builds its reads and safe saves from. The machine's own file system
// is one; a folder held in memory (for fuzzing) and a wrapper that records the steps and makes one of
// them fail (for tests) are others. Errors are the system's; `Files` words them for the user.
class FileSystem {
public:
    using Handle = int;

    virtual ~FileSystem() = default;

    // What the path names, through links or (linkStatus) the link itself. A path that is not there is
    // not_found without an error.
    virtual FileStatus status(const std::filesystem::path& path, std::error_code& ec) const = 0;
    virtual FileStatus linkStatus(const std::filesystem::path& path, std::error_code& ec) const = 0;
    virtual std::filesystem::path readLink(const std::filesystem::path& path, std::error_code& ec) const = 0;
    // The names in a folder; none when it cannot be listed.
    virtual std::vector<std::string> list(const std::filesystem::path& folder) const = 0;

    // The whole file; file_too_large once more than maxBytes are read.
    virtual std::error_code read(const std::filesystem::path& path, std::uintmax_t maxBytes,
                                 std::string& bytes) const = 0;

    // A new, empty file, created only if nothing of that name exists (not even a link to nothing).
    virtual std::error_code create(const std::filesystem::path& path, Handle& handle) = 0;
    virtual std::error_code write(Handle handle, std::string_view bytes) = 0;
    virtual std::error_code setPermissions(Handle handle, std::filesystem::perms permissions) = 0;
    // Flushes the file's bytes to the disk.
    virtual std::error_code sync(Handle handle) = 0;
    virtual std::error_code close(Handle handle) = 0;

    // Replaces `to` by `from` in one step.
    virtual std::error_code rename(const std::filesystem::path& from, const std::filesystem::path& to) = 0;
    virtual std::error_code remove(const std::filesystem::path& path) = 0;
    // Flushes the folder's entries, so that a rename in it survives a power cut.
    virtual std::error_code syncFolder(const std::filesystem::path& folder) = 0;
};

// The machine's own file system.
FileSystem& systemFiles();

} // namespace quillet
