#pragma once

#include "FileSystem.h"
#include "Result.h"

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace quillet {

// A new file's bytes, written to a temporary file beside it and flushed to the disk, waiting to be
// renamed into place by `Files::commit`. Dropped without a commit, the temporary file is removed and
// the target never changed.
class PendingFile {
public:
    PendingFile() = default;
    PendingFile(PendingFile&& other) noexcept;
    PendingFile& operator=(PendingFile&& other) noexcept;
    PendingFile(const PendingFile&) = delete;
    PendingFile& operator=(const PendingFile&) = delete;
    ~PendingFile();

private:
    friend class Files;
    void discard();

    FileSystem* m_system = nullptr;
    std::filesystem::path m_target; // the file replaced: a link's target, not the link
    std::filesystem::path m_temp;   // empty once renamed or removed
    bool m_targetExisted = false;
    bool m_renamed = false;
};

// Whole-file reading and writing for the user's files, on the machine's file system or another one.
// A file is never half-written: the new bytes go to a temporary file of a fresh name beside it
// (created exclusively, so an existing file or link of that name is never written through), are
// flushed to the disk, and only then renamed over the old one. A file that is a link is replaced at
// the link's target, so that the link and its target never part.
class Files {
public:
    Files() : m_system(&systemFiles()) {}
    explicit Files(FileSystem& system) : m_system(&system) {}

    FileSystem& system() const { return *m_system; }

    // Whether a plain file (or a link to one) of that name exists.
    bool exists(const std::filesystem::path& path) const;

    // The bytes of a file, refused when it is missing, not a plain file, unreadable or larger than
    // maxBytes.
    Result<std::string> read(const std::filesystem::path& path, std::uintmax_t maxBytes) const;

    // Replaces (or creates) the file with exactly these bytes. A read-only file is left alone.
    Status replace(const std::filesystem::path& path, std::string_view bytes) const;

    // The first half of `replace`: every check and every write, the target not yet touched. Saving
    // several files together prepares them all, renames them all, then finishes them together, so
    // that they change as close together as the system allows.
    Result<PendingFile> prepare(const std::filesystem::path& path, std::string_view bytes) const;
    // Renames a prepared file into place, then finishes it.
    Status commit(PendingFile& pending) const;
    // Renames a prepared file into place; `finish` makes the rename last.
    Status rename(PendingFile& pending) const;
    // Flushes the folders of the renamed files, then removes what earlier saves of them left behind
    // when they were stopped half-way.
    void finish(std::initializer_list<PendingFile*> renamed) const;

    // Writes a file that must not be replaced once it exists, such as a one-time backup. An existing
    // plain file of that name is kept as it is; a folder or a link to nothing of that name is refused.
    Status createIfAbsent(const std::filesystem::path& path, std::string_view bytes) const;

    // Copies a file to a new name the way `createIfAbsent` writes, never over an existing file.
    Status copyIfAbsent(const std::filesystem::path& from, const std::filesystem::path& to) const;

private:
    FileSystem* m_system;
};

// A fresh name for a temporary file beside `path`: hidden where the platform hides dot files, and
// ending in ".quillet-new" so that one left behind by a crash says where it came from.
std::filesystem::path temporaryFor(const std::filesystem::path& path);

// Whether a name in a folder is one that `temporaryFor` gives to the file `name` of that folder.
bool isTemporaryOf(std::string_view entry, std::string_view name);

// Why bytes cannot be one of our text files, as a predicate of the file ("is not a text file: ..."),
// or nothing. Text files never hold NUL bytes; a file saved as UTF-16 holds one in every other byte.
std::optional<std::string> whyNotText(std::string_view bytes);

} // namespace quillet
