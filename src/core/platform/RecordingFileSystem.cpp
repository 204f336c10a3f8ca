#include "RecordingFileSystem.h"

namespace fs = std::filesystem;

namespace quillet {

namespace {

// What the system would report for each step that fails.
std::error_code failureOf(FileStep step)
{
    switch (step) {
    case FileStep::Write:
        return std::make_error_code(std::errc::no_space_on_device);
    case FileStep::Rename:
    case FileStep::Remove:
        return std::make_error_code(std::errc::device_or_resource_busy);
    default:
        return std::make_error_code(std::errc::io_error);
    }
}

} // namespace

void RecordingFileSystem::failAfter(FileStep step, std::optional<int> successes)
{
    if (successes)
        m_successesLeft[step] = *successes;
    else
        m_successesLeft.erase(step);
}

bool RecordingFileSystem::record(FileStep step, const fs::path& path) const
{
    steps.push_back({step, path});
    const auto left = m_successesLeft.find(step);
    return left != m_successesLeft.end() && left->second-- <= 0;
}

std::error_code RecordingFileSystem::read(const fs::path& path, std::uintmax_t maxBytes,
                                          std::string& bytes) const
{
    if (record(FileStep::Read, path))
        return failureOf(FileStep::Read);
    return m_inner.read(path, maxBytes, bytes);
}

std::error_code RecordingFileSystem::create(const fs::path& path, Handle& handle)
{
    if (record(FileStep::Create, path))
        return failureOf(FileStep::Create);
    const std::error_code ec = m_inner.create(path, handle);
    if (!ec)
        m_open[handle] = path;
    return ec;
}

std::error_code RecordingFileSystem::write(Handle handle, std::string_view bytes)
{
    if (record(FileStep::Write, m_open[handle]))
        return failureOf(FileStep::Write);
    if (m_writeLimit && *m_writeLimit < bytes.size()) {
        (void)m_inner.write(handle, bytes.substr(0, static_cast<std::size_t>(*m_writeLimit)));
        return failureOf(FileStep::Write);
    }
    return m_inner.write(handle, bytes);
}

std::error_code RecordingFileSystem::sync(Handle handle)
{
    if (record(FileStep::Sync, m_open[handle]))
        return failureOf(FileStep::Sync);
    return m_inner.sync(handle);
}

std::error_code RecordingFileSystem::close(Handle handle)
{
    const fs::path path = m_open[handle];
    m_open.erase(handle);
    // The handle is closed whatever is reported, as a system closes it.
    const std::error_code ec = m_inner.close(handle);
    return record(FileStep::Close, path) ? failureOf(FileStep::Close) : ec;
}

std::error_code RecordingFileSystem::rename(const fs::path& from, const fs::path& to)
{
    if (record(FileStep::Rename, to))
        return failureOf(FileStep::Rename);
    return m_inner.rename(from, to);
}

std::error_code RecordingFileSystem::remove(const fs::path& path)
{
    if (record(FileStep::Remove, path))
        return failureOf(FileStep::Remove);
    return m_inner.remove(path);
}

std::error_code RecordingFileSystem::syncFolder(const fs::path& folder)
{
    if (record(FileStep::SyncFolder, folder))
        return failureOf(FileStep::SyncFolder);
    return m_inner.syncFolder(folder);
}

} // namespace quillet
