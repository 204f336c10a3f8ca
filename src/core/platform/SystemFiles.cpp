// The machine's file system: the only place where the file layer makes system calls.

#include "FileSystem.h"

#include <cerrno>
#include <cstdio>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
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
            names.push_back(it->path().filename().string());
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
        const errno_t error =
            _wsopen_s(&handle, path.c_str(), _O_CREAT | _O_EXCL | _O_WRONLY | _O_BINARY | _O_NOINHERIT,
                      _SH_DENYNO, _S_IREAD | _S_IWRITE);
        return error == 0 ? std::error_code() : std::error_code(error, std::generic_category());
    }

    std::error_code write(Handle handle, std::string_view bytes) override
    {
        while (!bytes.empty()) {
            const unsigned chunk =
                bytes.size() > (1u << 30) ? (1u << 30) : static_cast<unsigned>(bytes.size());
            const int written = _write(handle, bytes.data(), chunk);
            if (written <= 0)
                return written < 0 ? lastError() : std::make_error_code(std::errc::io_error);
            bytes.remove_prefix(static_cast<std::size_t>(written));
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
        return _commit(handle) == 0 ? std::error_code() : lastError();
    }

    std::error_code close(Handle handle) override
    {
        return _close(handle) == 0 ? std::error_code() : lastError();
    }

    // NTFS journals the rename itself; a folder cannot be opened for flushing.
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
#endif

    std::error_code rename(const fs::path& from, const fs::path& to) override
    {
        std::error_code ec;
        fs::rename(from, to, ec);
        return ec;
    }

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
