#include "MemoryFileSystem.h"

namespace fs = std::filesystem;

namespace quillet {

namespace {

// Whether the path names a "." or ".." part or doubles a slash, so that it needs normalising.
bool needsNormalising(std::string_view text)
{
    if (text.find("//") != std::string_view::npos)
        return true;
    for (std::size_t start = 0; start <= text.size();) {
        std::size_t end = text.find('/', start);
        if (end == std::string_view::npos)
            end = text.size();
        const std::string_view part = text.substr(start, end - start);
        if (part == "." || part == "..")
            return true;
        start = end + 1;
    }
    return false;
}

// Paths as plain strings: every file operation looks its path up, so the usual plain path is taken
// as it is, without a copy where the system's paths are already strings with slashes, rather than
// normalised part by part. `storage` holds the text when it has to be made.
std::string_view key(const fs::path& path, std::string& storage)
{
#ifdef _WIN32
    storage = path.generic_string();
    std::string_view text = storage;
#else
    std::string_view text = path.native();
#endif
    if (needsNormalising(text)) {
        storage = path.lexically_normal().generic_string();
        text = storage;
    }
    while (text.size() > 1 && text.back() == '/')
        text.remove_suffix(1);
    return text;
}

std::string key(const fs::path& path)
{
    std::string storage;
    return std::string(key(path, storage));
}

std::string_view parentKey(std::string_view name)
{
    const std::size_t slash = name.rfind('/');
    if (slash == std::string_view::npos)
        return {};
    return slash == 0 ? name.substr(0, 1) : name.substr(0, slash);
}

std::string_view nameOf(std::string_view key)
{
    return key.substr(key.rfind('/') + 1);
}

std::error_code missing()
{
    return std::make_error_code(std::errc::no_such_file_or_directory);
}

} // namespace

void MemoryFileSystem::addFolder(const fs::path& folder)
{
    std::string storage;
    addFolders(key(folder, storage));
}

void MemoryFileSystem::addFolders(std::string_view name)
{
    for (; !name.empty() && !m_folders.contains(name); name = parentKey(name)) {
        m_folders.emplace(name);
        if (parentKey(name) == name)
            break; // the root
    }
}

void MemoryFileSystem::put(const fs::path& path, std::string_view bytes)
{
    std::string storage;
    const std::string_view name = key(path, storage);
    addFolders(parentKey(name));
    if (const auto file = m_files.find(name); file != m_files.end())
        file->second = bytes;
    else
        m_files.emplace(name, bytes);
}

std::optional<std::string> MemoryFileSystem::get(const fs::path& path) const
{
    std::string storage;
    const auto found = m_files.find(key(path, storage));
    if (found == m_files.end())
        return std::nullopt;
    return found->second;
}

FileStatus MemoryFileSystem::status(const fs::path& path, std::error_code& ec) const
{
    ec.clear();
    FileStatus out;
    std::string storage;
    const std::string_view name = key(path, storage);
    if (const auto file = m_files.find(name); file != m_files.end()) {
        out.type = fs::file_type::regular;
        out.size = file->second.size();
        out.permissions = fs::perms::owner_read | fs::perms::owner_write;
    } else if (m_folders.contains(name)) {
        out.type = fs::file_type::directory;
        out.permissions = fs::perms::owner_all;
    }
    return out;
}

FileStatus MemoryFileSystem::linkStatus(const fs::path& path, std::error_code& ec) const
{
    return status(path, ec);
}

fs::path MemoryFileSystem::readLink(const fs::path&, std::error_code& ec) const
{
    ec = std::make_error_code(std::errc::invalid_argument);
    return {};
}

std::vector<std::string> MemoryFileSystem::list(const fs::path& folder) const
{
    std::string storage;
    const std::string_view parent = key(folder, storage);
    std::vector<std::string> names;
    for (const auto& [name, bytes] : m_files) {
        if (parentKey(name) == parent)
            names.emplace_back(nameOf(name));
    }
    for (const std::string& name : m_folders) {
        if (name != parent && parentKey(name) == parent)
            names.emplace_back(nameOf(name));
    }
    return names;
}

std::error_code MemoryFileSystem::read(const fs::path& path, std::uintmax_t maxBytes,
                                       std::string& bytes) const
{
    std::string storage;
    const std::string_view name = key(path, storage);
    const auto file = m_files.find(name);
    if (file == m_files.end())
        return m_folders.contains(name) ? std::make_error_code(std::errc::is_a_directory) : missing();
    if (file->second.size() > maxBytes) {
        bytes = file->second.substr(0, static_cast<std::size_t>(maxBytes) + 1);
        return std::make_error_code(std::errc::file_too_large);
    }
    bytes = file->second;
    return {};
}

std::error_code MemoryFileSystem::create(const fs::path& path, Handle& handle)
{
    const std::string name = key(path);
    if (m_files.contains(name) || m_folders.contains(name))
        return std::make_error_code(std::errc::file_exists);
    if (!m_folders.contains(parentKey(name)))
        return missing();
    m_files[name];
    handle = m_nextHandle++;
    m_open[handle] = name;
    return {};
}

std::error_code MemoryFileSystem::write(Handle handle, std::string_view bytes)
{
    const auto open = m_open.find(handle);
    if (open == m_open.end())
        return std::make_error_code(std::errc::bad_file_descriptor);
    m_files[open->second].append(bytes);
    return {};
}

std::error_code MemoryFileSystem::sync(Handle handle)
{
    return m_open.contains(handle) ? std::error_code() : std::make_error_code(std::errc::bad_file_descriptor);
}

std::error_code MemoryFileSystem::close(Handle handle)
{
    return m_open.erase(handle) == 1 ? std::error_code()
                                     : std::make_error_code(std::errc::bad_file_descriptor);
}

std::error_code MemoryFileSystem::rename(const fs::path& from, const fs::path& to)
{
    std::string storage;
    const auto source = m_files.find(key(from, storage));
    if (source == m_files.end())
        return missing();
    const std::string_view target = key(to, storage);
    if (m_folders.contains(target))
        return std::make_error_code(std::errc::is_a_directory);
    if (!m_folders.contains(parentKey(target)))
        return missing();
    // The node moves under its new name, bytes and all; a file of that name is replaced.
    auto node = m_files.extract(source);
    node.key() = target;
    if (auto placed = m_files.insert(std::move(node)); !placed.inserted)
        placed.position->second = std::move(placed.node.mapped());
    return {};
}

std::error_code MemoryFileSystem::remove(const fs::path& path)
{
    std::string storage;
    if (const auto file = m_files.find(key(path, storage)); file != m_files.end())
        m_files.erase(file);
    return {};
}

std::error_code MemoryFileSystem::syncFolder(const fs::path& folder)
{
    std::string storage;
    return m_folders.contains(key(folder, storage)) ? std::error_code() : missing();
}

} // namespace quillet
