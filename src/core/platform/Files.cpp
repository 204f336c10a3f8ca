#include "Files.h"

#include "Paths.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <system_error>

#ifdef _WIN32
#include <io.h>
#else
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

bool flushToDisk(std::FILE* file)
{
    if (std::fflush(file) != 0)
        return false;
#ifdef _WIN32
    return _commit(_fileno(file)) == 0;
#else
    return fsync(fileno(file)) == 0;
#endif
}

} // namespace

fs::path temporaryFor(const fs::path& path)
{
    fs::path temp = path;
    temp += ".quillet-new";
    return temp;
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

    std::FILE* file = std::fopen(path.string().c_str(), "rb");
    if (!file)
        return failure(path, "could not be opened: " + std::string(std::strerror(errno)));
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

Status Files::replace(const fs::path& path, std::string_view bytes) const
{
    std::error_code ec;
    const auto status = fs::status(path, ec);
    const bool exists = !ec && fs::exists(status);
    if (exists && fs::is_directory(status))
        return failure(path, "is a folder, so it cannot be written");
    if (exists && (status.permissions() & fs::perms::owner_write) == fs::perms::none)
        return failure(path, "is read-only, so it was not changed");
    const fs::path folder = path.parent_path().empty() ? fs::path(".") : path.parent_path();
    if (!fs::is_directory(folder, ec))
        return failure(path, "cannot be written: its folder " + quoted(folder) + " does not exist");

    const fs::path temp = temporaryFor(path);
    std::FILE* file = std::fopen(temp.string().c_str(), "wb");
    if (!file)
        return failure(path, "could not be written: " + std::string(std::strerror(errno)));

    std::size_t toWrite = bytes.size();
    bool full = false;
    if (m_failAfter && *m_failAfter < toWrite) {
        toWrite = static_cast<std::size_t>(*m_failAfter);
        full = true;
    }
    bool ok = (toWrite == 0 || std::fwrite(bytes.data(), 1, toWrite, file) == toWrite) && !full;
    ok = flushToDisk(file) && ok;
    ok = std::fclose(file) == 0 && ok;
    if (!ok) {
        fs::remove(temp, ec);
        return failure(path, "could not be written completely (is the disk full?); the old file was kept");
    }
    if (exists)
        fs::permissions(temp, status.permissions(), ec);
    fs::rename(temp, path, ec);
    if (ec) {
        const std::string why = reason(ec);
        fs::remove(temp, ec);
        return failure(path, "could not be replaced: " + why + "; the old file was kept");
    }
    return success();
}

Status Files::copyIfAbsent(const fs::path& from, const fs::path& to) const
{
    std::error_code ec;
    if (fs::exists(to, ec))
        return success();
    fs::copy_file(from, to, fs::copy_options::none, ec);
    if (ec && ec != std::errc::file_exists)
        return failure(to, "could not be created: " + reason(ec));
    return success();
}

} // namespace quillet
