#include "Files.h"

#include "Paths.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <random>
#include <system_error>
#include <utility>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace quillet {

namespace {

std::string quoted(const fs::path& path)
{
    return "\"" + displayPath(path) + "\"";
}

Error failure(const fs::path& path, const std::string& what)
{
    return Error{quoted(path) + " " + what + "."};
}

std::string reason(const std::error_code& ec)
{
    return ec.message();
}

std::string lastError()
{
    return std::strerror(errno);
}

// The few calls that differ between systems: a file created only if nothing of its name exists (not
// even a link), writes, a flush to the disk, and a flush of the folder that records a rename.
#ifdef _WIN32
// Windows reports its own error numbers; callers test and word the portable ones.
void setErrno(DWORD error)
{
    switch (error) {
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        errno = EEXIST;
        break;
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        errno = ENOENT;
        break;
    case ERROR_ACCESS_DENIED:
        errno = EACCES;
        break;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        errno = ENOSPC;
        break;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        errno = EBUSY; // another program, such as the simulator, holds the file open
        break;
    default:
        errno = EIO;
    }
}

HANDLE osHandle(int fd)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(fd));
}

int openNew(const fs::path& path)
{
    // CREATE_NEW fails when anything of that name exists, a link included; nobody else may open the
    // file until it is complete.
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        setErrno(GetLastError());
        return -1;
    }
    const int fd = _open_osfhandle(reinterpret_cast<intptr_t>(file), _O_WRONLY | _O_BINARY);
    if (fd < 0)
        CloseHandle(file);
    return fd;
}

long long writeSome(int fd, const char* data, std::size_t size)
{
    const DWORD chunk = size > (1u << 30) ? (1u << 30) : static_cast<DWORD>(size);
    DWORD written = 0;
    if (!WriteFile(osHandle(fd), data, chunk, &written, nullptr)) {
        setErrno(GetLastError());
        return -1;
    }
    return written;
}

bool syncFile(int fd)
{
    if (FlushFileBuffers(osHandle(fd)))
        return true;
    setErrno(GetLastError());
    return false;
}

bool closeFile(int fd)
{
    return _close(fd) == 0;
}

// Windows keeps only the read-only attribute, which a file we may replace does not have.
void copyPermissions(int, fs::perms) {}

// The C library's rename refuses to replace an existing file here. MoveFileExW replaces it in one
// step, and with WRITE_THROUGH returns only once the rename is on the disk, which is what flushing
// the folder does elsewhere. A file another program has open cannot be replaced; virus scanners and
// the simulator itself hold files for a moment, so it is tried again for up to half a second.
std::error_code replaceFile(const fs::path& from, const fs::path& to)
{
    for (int attempt = 0;; ++attempt) {
        if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return {};
        const DWORD error = GetLastError();
        const bool held = error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION;
        if (!held || attempt == 10) {
            setErrno(error);
            return {errno, std::generic_category()};
        }
        Sleep(50);
    }
}

void syncFolder(const fs::path&) {}

std::FILE* openForReading(const fs::path& path)
{
    return _wfopen(path.c_str(), L"rb");
}
#else
int openNew(const fs::path& path)
{
    int fd = -1;
    do {
        fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    } while (fd < 0 && errno == EINTR);
    return fd;
}

long long writeSome(int fd, const char* data, std::size_t size)
{
    return ::write(fd, data, size);
}

bool syncFile(int fd)
{
    return ::fsync(fd) == 0;
}

bool closeFile(int fd)
{
    return ::close(fd) == 0;
}

void copyPermissions(int fd, fs::perms perms)
{
    (void)::fchmod(fd, static_cast<mode_t>(perms & fs::perms::mask));
}

std::error_code replaceFile(const fs::path& from, const fs::path& to)
{
    std::error_code ec;
    fs::rename(from, to, ec);
    return ec;
}

std::FILE* openForReading(const fs::path& path)
{
    return std::fopen(path.c_str(), "rb");
}

// The rename lives in the folder: until the folder is flushed, a power cut may undo it.
void syncFolder(const fs::path& folder)
{
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    (void)::fsync(fd); // some file systems cannot; the file itself is on the disk already
    ::close(fd);
}
#endif

bool writeAll(int fd, std::string_view bytes)
{
    while (!bytes.empty()) {
        const long long written = writeSome(fd, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

fs::path folderOf(const fs::path& path)
{
    return path.parent_path().empty() ? fs::path(".") : path.parent_path();
}

} // namespace

fs::path temporaryFor(const fs::path& path)
{
    // Its own generator: the program's one random generator draws the presets, and must not be moved.
    static std::mt19937_64 generator{std::random_device{}()};
    char suffix[17];
    std::snprintf(suffix, sizeof suffix, "%016llx", static_cast<unsigned long long>(generator()));
    return folderOf(path) / pathFromUtf8("." + utf8Of(path.filename()) + "." + suffix + ".quillet-new");
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
    : m_target(std::move(other.m_target)), m_temp(std::exchange(other.m_temp, {})),
      m_targetExisted(other.m_targetExisted)
{
}

PendingFile& PendingFile::operator=(PendingFile&& other) noexcept
{
    if (this != &other) {
        discard();
        m_target = std::move(other.m_target);
        m_temp = std::exchange(other.m_temp, {});
        m_targetExisted = other.m_targetExisted;
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
    std::error_code ec;
    fs::remove(m_temp, ec);
    m_temp.clear();
}

Result<std::string> Files::read(const fs::path& path, std::uintmax_t maxBytes) const
{
    std::error_code ec;
    const auto status = fs::status(path, ec);
    if (ec || !fs::exists(status))
        return failure(path, "does not exist");
    if (fs::is_directory(status))
        return failure(path, "is a folder, not a file");
    const std::uintmax_t size = fs::file_size(path, ec);
    if (ec)
        return failure(path, "could not be read: " + reason(ec));
    if (size > maxBytes) {
        return failure(path, "is too large to be the expected file (" + std::to_string(size) +
                                 " bytes; at most " + std::to_string(maxBytes) + " are accepted)");
    }

    std::FILE* file = openForReading(path);
    if (!file)
        return failure(path, "could not be opened: " + lastError());
    // Read to the end rather than trusting the size: the file may change while we read it.
    std::string bytes;
    char chunk[65536];
    std::size_t got = 0;
    while ((got = std::fread(chunk, 1, sizeof chunk, file)) > 0) {
        bytes.append(chunk, got);
        if (bytes.size() > maxBytes) {
            std::fclose(file);
            return failure(path, "is too large to be the expected file");
        }
    }
    const bool failed = std::ferror(file) != 0;
    std::fclose(file);
    if (failed)
        return failure(path, "could not be read");
    return bytes;
}

Result<PendingFile> Files::prepare(const fs::path& path, std::string_view bytes) const
{
    std::error_code ec;
    const auto status = fs::status(path, ec);
    const bool exists = !ec && fs::exists(status);
    if (exists && fs::is_directory(status))
        return failure(path, "is a folder, so it cannot be written");
    if (exists && (status.permissions() & fs::perms::owner_write) == fs::perms::none)
        return failure(path, "is read-only, so it was not changed");
    const fs::path folder = folderOf(path);
    if (!fs::is_directory(folder, ec))
        return failure(path, "cannot be written: its folder " + quoted(folder) + " does not exist");

    PendingFile pending;
    int fd = -1;
    for (int attempt = 0; attempt < 100 && fd < 0; ++attempt) {
        pending.m_temp = temporaryFor(path);
        fd = openNew(pending.m_temp);
        if (fd < 0 && errno != EEXIST)
            break;
    }
    if (fd < 0) {
        pending.m_temp.clear();
        return failure(path, "could not be written: " + lastError());
    }
    pending.m_target = path;
    pending.m_targetExisted = exists;

    std::string_view toWrite = bytes;
    const bool full = m_failAfter && *m_failAfter < bytes.size();
    if (full)
        toWrite = bytes.substr(0, static_cast<std::size_t>(*m_failAfter));
    bool ok = writeAll(fd, toWrite) && !full;
    if (exists)
        copyPermissions(fd, status.permissions());
    ok = syncFile(fd) && ok;
    ok = closeFile(fd) && ok;
    if (!ok) {
        return failure(path, std::string("could not be written completely (is the disk full?)") +
                                 (exists ? "; the old file was kept" : ""));
    }
    return pending;
}

Status Files::commit(PendingFile& pending) const
{
    const fs::path& target = pending.m_target;
    std::error_code ec;
    if (m_renamesLeft && (*m_renamesLeft)-- <= 0)
        ec = std::make_error_code(std::errc::device_or_resource_busy);
    else
        ec = replaceFile(pending.m_temp, target);
    if (ec) {
        pending.discard();
        return failure(target, "could not be replaced: " + reason(ec) +
                                   (pending.m_targetExisted ? "; the old file was kept" : ""));
    }
    pending.m_temp.clear();
    syncFolder(folderOf(target));
    return success();
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
    const auto entry = fs::symlink_status(path, ec);
    if (ec && entry.type() == fs::file_type::none)
        return failure(path, "could not be looked at: " + reason(ec));
    if (fs::exists(entry)) {
        const auto target = fs::status(path, ec);
        if (fs::is_regular_file(target))
            return success();
        if (fs::is_directory(target))
            return failure(path, "is a folder, not a file");
        if (fs::is_symlink(entry) && !fs::exists(target)) {
            return failure(path,
                           "is a link to " + quoted(fs::read_symlink(path, ec)) + ", which does not exist");
        }
        return failure(path, "is not a plain file");
    }
    return replace(path, bytes);
}

Status Files::copyIfAbsent(const fs::path& from, const fs::path& to) const
{
    std::error_code ec;
    if (fs::is_regular_file(to, ec))
        return success();
    auto bytes = read(from, static_cast<std::uintmax_t>(-1));
    if (!bytes)
        return bytes.error();
    return createIfAbsent(to, bytes.value());
}

} // namespace quillet
