#pragma once

#include "FileSystem.h"

#include <map>
#include <optional>

namespace quillet {

// The steps of a save that change something on the disk, and reads.
enum class FileStep { Read, Create, Write, Sync, Close, Rename, Remove, SyncFolder };

struct RecordedStep {
    FileStep step;
    std::filesystem::path path; // of the file written, the rename's target, the folder flushed
    bool operator==(const RecordedStep&) const = default;
};

// Passes every step on to another file system, records it, and makes a chosen step fail as a full
// disk, a locked file or a failing disk would: what the tests of saving need.
class RecordingFileSystem final : public FileSystem {
public:
    explicit RecordingFileSystem(FileSystem& inner) : m_inner(inner) {}

    // Every step so far, failed ones included.
    mutable std::vector<RecordedStep> steps;

    // Makes the step fail once this many more of its kind have succeeded; nothing to stop failing.
    void failAfter(FileStep step, std::optional<int> successes);
    // Makes every later write fail once this many bytes of it are written, as a full disk would.
    void failWritesAfter(std::optional<std::uintmax_t> bytes) { m_writeLimit = bytes; }

    FileStatus status(const std::filesystem::path& path, std::error_code& ec) const override
    {
        return m_inner.status(path, ec);
    }
    FileStatus linkStatus(const std::filesystem::path& path, std::error_code& ec) const override
    {
        return m_inner.linkStatus(path, ec);
    }
    std::filesystem::path readLink(const std::filesystem::path& path, std::error_code& ec) const override
    {
        return m_inner.readLink(path, ec);
    }
    std::vector<std::string> list(const std::filesystem::path& folder) const override
    {
        return m_inner.list(folder);
    }
    std::error_code read(const std::filesystem::path& path, std::uintmax_t maxBytes,
                         std::string& bytes) const override;
    std::error_code create(const std::filesystem::path& path, Handle& handle) override;
    std::error_code write(Handle handle, std::string_view bytes) override;
    std::error_code setPermissions(Handle handle, std::filesystem::perms permissions) override
    {
        return m_inner.setPermissions(handle, permissions);
    }
    std::error_code sync(Handle handle) override;
    std::error_code close(Handle handle) override;
    std::error_code rename(const std::filesystem::path& from, const std::filesystem::path& to) override;
    std::error_code remove(const std::filesystem::path& path) override;
    std::error_code syncFolder(const std::filesystem::path& folder) override;

private:
    // Records the step; true when it is to fail.
    bool record(FileStep step, const std::filesystem::path& path) const;

    FileSystem& m_inner;
    mutable std::map<FileStep, int> m_successesLeft;
    std::optional<std::uintmax_t> m_writeLimit;
    std::map<Handle, std::filesystem::path> m_open;
};

} // namespace quillet
