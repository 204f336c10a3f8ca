// The machine's file system: the only place where the file layer makes system calls.

#include "FileSystem.h"
#include "Paths.h"

#include <cerrno>
#include <cstdio>

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

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

#ifdef _WIN32
// Windows' own error numbers, as the portable conditions the file layer tests and words.
std::error_code windowsError(DWORD error)
{
    switch (error) {
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return std::make_error_code(std::errc::file_exists);
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return std::make_error_code(std::errc::no_such_file_or_directory);
    case ERROR_ACCESS_DENIED:
        return std::make_error_code(std::errc::permission_denied);
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return std::make_error_code(std::errc::no_space_on_device);
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        return std::make_error_code(std::errc::device_or_resource_busy); // another program holds it
    default:
        return {static_cast<int>(error), std::system_category()};
    }
}

HANDLE osHandle(int handle)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(handle));
}
#endif

FileStatus toStatus(const fs::file_status& status, const fs::path& path, bool follow)
{
    FileStatus out;
    out.type = status.type() == fs::file_type::none ? fs::file_type::not_found : status.type();
    out.permissions = status.permissions();
    if (out.isFile()) {
        std::error_code ec;
        out.size = follow || !fs::is_symlink(status) ? fs::file_size(path, ec) : 0;
    }
    return out;
}

class SystemFiles final : public FileSystem {
public:
    FileStatus status(const fs::path& path, std::error_code& ec) const override
    {
        const auto status = fs::status(path, ec);
        if (ec == std::errc::no_such_file_or_directory || ec == std::errc::not_a_directory)
            ec.clear();
        return toStatus(status, path, true);
    }

    FileStatus linkStatus(const fs::path& path, std::error_code& ec) const override
    {
        const auto status = fs::symlink_status(path, ec);
        if (ec == std::errc::no_such_file_or_directory || ec == std::errc::not_a_directory)
            ec.clear();
        return toStatus(status, path, false);
    }

    fs::path readLink(const fs::path& path, std::error_code& ec) const override
    {
        return fs::read_symlink(path, ec);
    }

    std::vector<std::string> list(const fs::path& folder) const override
    {
        std::vector<std::string> names;
        std::error_code ec;
        for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec))
            names.push_back(utf8Of(it->path().filename()));
        return names;
    }

    std::error_code read(const fs::path& path, std::uintmax_t maxBytes, std::string& bytes) const override
    {
#ifdef _WIN32
        std::FILE* file = _wfopen(path.c_str(), L"rb");
#else
        std::FILE* file = std::fopen(path.c_str(), "rb");
#endif
        if (!file)
            return lastError();
        // Read to the end rather than trusting the size: the file may change while we read it.
        bytes.clear();
        char chunk[65536];
        std::size_t got = 0;
        std::error_code ec;
        while ((got = std::fread(chunk, 1, sizeof chunk, file)) > 0) {
            bytes.append(chunk, got);
            if (bytes.size() > maxBytes) {
                ec = std::make_error_code(std::errc::file_too_large);
                break;
            }
        }
        if (!ec && std::ferror(file))
            ec = std::make_error_code(std::errc::io_error);
        std::fclose(file);
        return ec;
    }

#ifdef _WIN32
    std::error_code create(const fs::path& path, Handle& handle) override
    {
        // CREATE_NEW fails when anything of that name exists, a link included; nobody else may open the
        // file until it is complete.
        const HANDLE file =
            CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file == INVALID_HANDLE_VALUE)
            return windowsError(GetLastError());
        handle = _open_osfhandle(reinterpret_cast<intptr_t>(file), _O_WRONLY | _O_BINARY);
        if (handle < 0) {
            CloseHandle(file);
            return std::make_error_code(std::errc::too_many_files_open);
        }
        return {};
    }

    std::error_code write(Handle handle, std::string_view bytes) override
    {
        while (!bytes.empty()) {
            const DWORD chunk = bytes.size() > (1u << 30) ? (1u << 30) : static_cast<DWORD>(bytes.size());
            DWORD written = 0;
            if (!WriteFile(osHandle(handle), bytes.data(), chunk, &written, nullptr))
                return windowsError(GetLastError());
            if (written == 0)
                return std::make_error_code(std::errc::io_error);
            bytes.remove_prefix(written);
        }
        return {};
    }

    // Windows keeps only the read-only attribute, which a file we may replace does not have.
    std::error_code setPermissions(Handle, fs::perms) override
    {
        return {};
    }

    std::error_code sync(Handle handle) override
    {
        return FlushFileBuffers(osHandle(handle)) ? std::error_code() : windowsError(GetLastError());
    }

    std::error_code close(Handle handle) override
    {
        return _close(handle) == 0 ? std::error_code() : lastError();
    }

    // The C library's rename refuses to replace an existing file here. MoveFileExW replaces it in one
    // step, and with WRITE_THROUGH returns only once the rename is on the disk. A file another program
    // has open cannot be replaced; virus scanners and the simulator itself hold files for a moment, so
    // it is tried again for up to half a second.
    std::error_code rename(const fs::path& from, const fs::path& to) override
    {
        for (int attempt = 0;; ++attempt) {
            if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
                return {};
            const DWORD error = GetLastError();
            if ((error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION) || attempt == 10)
                return windowsError(error);
            Sleep(50);
        }
    }

    // MOVEFILE_WRITE_THROUGH has put the rename on the disk; a folder cannot be opened for flushing.
    std::error_code syncFolder(const fs::path&) override
    {
        return {};
    }
#else
    std::error_code create(const fs::path& path, Handle& handle) override
    {
        do {
            handle = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
        } while (handle < 0 && errno == EINTR);
        return handle < 0 ? lastError() : std::error_code();
    }

    std::error_code write(Handle handle, std::string_view bytes) override
    {
        while (!bytes.empty()) {
            const ssize_t written = ::write(handle, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR)
                continue;
            if (written <= 0)
                return written < 0 ? lastError() : std::make_error_code(std::errc::io_error);
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        return {};
    }

    std::error_code setPermissions(Handle handle, fs::perms permissions) override
    {
        return ::fchmod(handle, static_cast<mode_t>(permissions & fs::perms::mask)) == 0 ? std::error_code()
                                                                                         : lastError();
    }

    std::error_code sync(Handle handle) override
    {
        return ::fsync(handle) == 0 ? std::error_code() : lastError();
    }

    std::error_code close(Handle handle) override
    {
        return ::close(handle) == 0 ? std::error_code() : lastError();
    }

    std::error_code syncFolder(const fs::path& folder) override
    {
        const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (fd < 0)
            return lastError();
        const std::error_code ec = ::fsync(fd) == 0 ? std::error_code() : lastError();
        ::close(fd);
        return ec;
    }

    std::error_code rename(const fs::path& from, const fs::path& to) override
    {
        std::error_code ec;
        fs::rename(from, to, ec);
        return ec;
    }
#endif

    std::error_code remove(const fs::path& path) override
    {
        std::error_code ec;
        fs::remove(path, ec);
        return ec;
    }
};

} // namespace

FileSystem& systemFiles()
{
    static SystemFiles files;
    return files;
}

} // namespace quillet
