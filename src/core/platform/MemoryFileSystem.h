#pragma once

#include "FileSystem.h"

#include <functional>
#include <map>
#include <optional>
#include <set>

namespace quillet {

// Folders and files held in memory: the same steps as the machine's file system, at the speed a
// fuzzer needs. It has no links, and every file may be written.
class MemoryFileSystem final : public FileSystem {
public:
    // Makes the folder and the folders above it.
    void addFolder(const std::filesystem::path& folder);
    // Writes a file outright, making its folders.
    void put(const std::filesystem::path& path, std::string_view bytes);
    // The bytes of a file, or nothing.
    std::optional<std::string> get(const std::filesystem::path& path) const;

    FileStatus status(const std::filesystem::path& path, std::error_code& ec) const override;
    FileStatus linkStatus(const std::filesystem::path& path, std::error_code& ec) const override;
    std::filesystem::path readLink(const std::filesystem::path& path, std::error_code& ec) const override;
    std::vector<std::string> list(const std::filesystem::path& folder) const override;
    std::error_code read(const std::filesystem::path& path, std::uintmax_t maxBytes,
                         std::string& bytes) const override;
    std::error_code create(const std::filesystem::path& path, Handle& handle) override;
    std::error_code write(Handle handle, std::string_view bytes) override;
    std::error_code setPermissions(Handle, std::filesystem::perms) override { return {}; }
    std::error_code sync(Handle handle) override;
    std::error_code close(Handle handle) override;
    std::error_code rename(const std::filesystem::path& from, const std::filesystem::path& to) override;
    std::error_code remove(const std::filesystem::path& path) override;
    std::error_code syncFolder(const std::filesystem::path& folder) override;

private:
    // The folder of that key and the folders above it.
    void addFolders(std::string_view name);

    // By the path's text, looked up without a copy of it.
    std::map<std::string, std::string, std::less<>> m_files;
    std::set<std::string, std::less<>> m_folders;
    std::map<Handle, std::string> m_open; // handle, path
    Handle m_nextHandle = 1;
};

} // namespace quillet
