#include "Files.h"

#include "Paths.h"

#include <algorithm>
#include <cstdio>
#include <random>
#include <utility>
#include <vector>

namespace fs = std::filesystem;

namespace quillet {

namespace {

constexpr std::string_view kTemporaryEnd = ".quillet-new";
constexpr std::size_t kTemporaryDigits = 16;

Error failure(const fs::path& path, const std::string& what)
{
    return Error{quotedPath(path) + " " + what + "."};
}

fs::path folderOf(const fs::path& path)
{
    fs::path folder = path.parent_path();
    return folder.empty() ? fs::path(".") : folder;
}

// The file a save of `path` replaces: the path itself, or the file its links lead to. Replacing the
// link itself would leave its target, the file other programs read, silently stale.
Result<fs::path> fileBehind(const FileSystem& system, const fs::path& path)
{
    fs::path current = path;
    for (int hop = 0; hop < 40; ++hop) {
        std::error_code ec;
        const FileStatus entry = system.linkStatus(current, ec);
        if (ec)
            return failure(path, "could not be looked at: " + ec.message());
        if (!entry.isLink())
            return current;
        const fs::path target = system.readLink(current, ec);
        if (ec)
            return failure(path, "is a link that could not be read: " + ec.message());
        current = target.is_absolute() ? target : folderOf(current) / target;
        if (!system.status(current, ec).exists() && !ec)
            return failure(path, "is a link to " + quotedPath(target) + ", which does not exist");
    }
    return failure(path, "is a link that leads round in a circle");
}

// Removes the temporary files that saves of `file` left when they were stopped before their rename:
// only regular files of our own pattern, never a link of such a name.
void removeLeftovers(FileSystem& system, const fs::path& file)
{
    const fs::path folder = folderOf(file);
    const std::string name = utf8Of(file.filename());
    for (const std::string& entry : system.list(folder)) {
        if (!isTemporaryOf(entry, name))
            continue;
        std::error_code ec;
        const fs::path leftover = folder / pathFromUtf8(entry);
        if (system.linkStatus(leftover, ec).isFile() && !ec)
            (void)system.remove(leftover);
    }
}

} // namespace

fs::path temporaryFor(const fs::path& path)
{
    // Its own generator: the program's one random generator draws the presets, and must not be moved.
    // A name only has to differ from those of other saves; nothing depends on its digits.
    static std::mt19937_64 generator{std::random_device{}()};
    char suffix[kTemporaryDigits + 1];
    std::snprintf(suffix, sizeof suffix, "%016llx", static_cast<unsigned long long>(generator()));
    std::string name = ".";
    name += utf8Of(path.filename());
    name += '.';
    name += suffix;
    name += kTemporaryEnd;
    return folderOf(path) / pathFromUtf8(name);
}

bool isTemporaryOf(std::string_view entry, std::string_view name)
{
    const std::size_t size = 1 + name.size() + 1 + kTemporaryDigits + kTemporaryEnd.size();
    if (entry.size() != size || entry[0] != '.' || entry.substr(1, name.size()) != name ||
        entry[1 + name.size()] != '.' || !entry.ends_with(kTemporaryEnd))
        return false;
    const std::string_view digits = entry.substr(2 + name.size(), kTemporaryDigits);
    return std::all_of(digits.begin(), digits.end(),
                       [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); });
}

std::optional<std::string> whyNotText(std::string_view bytes)
{
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"))
        return "is saved as UTF-16 (Unicode) text, which Quillet cannot read; save it again as ANSI text";
    const std::size_t nul = bytes.find('\0');
    if (nul == std::string_view::npos)
        return std::nullopt;
    int line = 1;
    for (std::size_t i = 0; i < nul; ++i) {
        if (bytes[i] == '\n' || (bytes[i] == '\r' && (i + 1 >= bytes.size() || bytes[i + 1] != '\n')))
            ++line;
    }
    return "is not a text file: it holds a NUL byte on line " + std::to_string(line);
}

PendingFile::PendingFile(PendingFile&& other) noexcept
    : m_system(other.m_system), m_target(std::move(other.m_target)), m_temp(std::exchange(other.m_temp, {})),
      m_targetExisted(other.m_targetExisted), m_renamed(std::exchange(other.m_renamed, false))
{
}

PendingFile& PendingFile::operator=(PendingFile&& other) noexcept
{
    if (this != &other) {
        discard();
        m_system = other.m_system;
        m_target = std::move(other.m_target);
        m_temp = std::exchange(other.m_temp, {});
        m_targetExisted = other.m_targetExisted;
        m_renamed = std::exchange(other.m_renamed, false);
    }
    return *this;
}

PendingFile::~PendingFile()
{
    discard();
}

void PendingFile::discard()
{
    if (m_temp.empty())
        return;
    (void)m_system->remove(m_temp);
    m_temp.clear();
}

bool Files::exists(const fs::path& path) const
{
    std::error_code ec;
    return m_system->status(path, ec).isFile();
}

Result<std::string> Files::read(const fs::path& path, std::uintmax_t maxBytes) const
{
    std::error_code ec;
    const FileStatus status = m_system->status(path, ec);
    if (ec || !status.exists())
        return failure(path, "does not exist");
    if (status.isFolder())
        return failure(path, "is a folder, not a file");
    if (status.size > maxBytes) {
        return failure(path, "is too large to be the expected file (" + std::to_string(status.size) +
                                 " bytes; at most " + std::to_string(maxBytes) + " are accepted)");
    }
    std::string bytes;
    ec = m_system->read(path, maxBytes, bytes);
    if (ec == std::errc::file_too_large)
        return failure(path, "is too large to be the expected file");
    if (ec)
        return failure(path, "could not be read: " + ec.message());
    return bytes;
}

Result<PendingFile> Files::prepare(const fs::path& path, std::string_view bytes) const
{
    auto behind = fileBehind(*m_system, path);
    if (!behind)
        return behind.error();
    const fs::path target = std::move(behind).value();
    std::error_code ec;
    const FileStatus status = m_system->status(target, ec);
    const bool exists = !ec && status.exists();
    if (exists && status.isFolder())
        return failure(path, "is a folder, so it cannot be written");
    if (exists && (status.permissions & fs::perms::owner_write) == fs::perms::none)
        return failure(path, "is read-only, so it was not changed");
    const fs::path folder = folderOf(target);
    if (!m_system->status(folder, ec).isFolder())
        return failure(path, "cannot be written: its folder " + quotedPath(folder) + " does not exist");

    PendingFile pending;
    pending.m_system = m_system;
    FileSystem::Handle handle = -1;
    for (int attempt = 0; attempt < 100; ++attempt) {
        pending.m_temp = temporaryFor(target);
        ec = m_system->create(pending.m_temp, handle);
        if (ec != std::errc::file_exists)
            break;
    }
    if (ec) {
        pending.m_temp.clear();
        return failure(path, "could not be written: " + ec.message());
    }
    pending.m_target = target;
    pending.m_targetExisted = exists;

    bool ok = !m_system->write(handle, bytes);
    if (exists)
        (void)m_system->setPermissions(handle, status.permissions);
    ok = !m_system->sync(handle) && ok;
    ok = !m_system->close(handle) && ok;
    if (!ok) {
        return failure(path, std::string("could not be written completely (is the disk full?)") +
                                 (exists ? "; the old file was kept" : ""));
    }
    return pending;
}

Status Files::rename(PendingFile& pending) const
{
    const std::error_code ec = m_system->rename(pending.m_temp, pending.m_target);
    if (ec) {
        pending.discard();
        return failure(pending.m_target, "could not be replaced: " + ec.message() +
                                             (pending.m_targetExisted ? "; the old file was kept" : ""));
    }
    pending.m_temp.clear();
    pending.m_renamed = true;
    return success();
}

void Files::finish(std::initializer_list<PendingFile*> renamed) const
{
    // The renames live in the folders: until these are flushed, a power cut may undo them.
    std::vector<fs::path> folders;
    for (const PendingFile* file : renamed) {
        const fs::path folder = folderOf(file->m_target);
        if (file->m_renamed && std::find(folders.begin(), folders.end(), folder) == folders.end())
            folders.push_back(folder);
    }
    for (const fs::path& folder : folders)
        (void)m_system->syncFolder(folder); // some file systems cannot; the files are on the disk already
    for (PendingFile* file : renamed) {
        if (file->m_renamed)
            removeLeftovers(*m_system, file->m_target);
        file->m_renamed = false;
    }
}

Status Files::commit(PendingFile& pending) const
{
    Status renamed = rename(pending);
    if (renamed)
        finish({&pending});
    return renamed;
}

Status Files::replace(const fs::path& path, std::string_view bytes) const
{
    auto pending = prepare(path, bytes);
    if (!pending)
        return pending.error();
    return commit(pending.value());
}

Status Files::createIfAbsent(const fs::path& path, std::string_view bytes) const
{
    std::error_code ec;
    const FileStatus entry = m_system->linkStatus(path, ec);
    if (ec)
        return failure(path, "could not be looked at: " + ec.message());
    if (entry.exists()) {
        const FileStatus target = m_system->status(path, ec);
        if (target.isFile())
            return success();
        if (target.isFolder())
            return failure(path, "is a folder, not a file");
        if (entry.isLink() && !target.exists())
            return failure(path, "is a link to " + quotedPath(m_system->readLink(path, ec)) +
                                     ", which does not exist");
        return failure(path, "is not a plain file");
    }
    return replace(path, bytes);
}

Status Files::copyIfAbsent(const fs::path& from, const fs::path& to) const
{
    if (exists(to))
        return success();
    auto bytes = read(from, static_cast<std::uintmax_t>(-1));
    if (!bytes)
        return bytes.error();
    return createIfAbsent(to, bytes.value());
}

} // namespace quillet
