#include "UserFolder.h"

#include "AircraftTypes.h"
#include "Settings.h"
#include "platform/Paths.h"

#include <system_error>
#include <vector>

namespace fs = std::filesystem;

namespace quillet {

namespace {

// Far larger than any aircraft picture.
constexpr std::uintmax_t kPictureMaxBytes = 16 * 1024 * 1024;

} // namespace

std::string starterSettings()
{
    std::vector<MenuEntry> entries;
    for (const AircraftType& type : kAircraftTypes)
        entries.push_back({std::string(type.type), {}});
    return formatSettings(kDefaultSimFolder, entries);
}

Status prepareUserFolder(const fs::path& folder, const fs::path& installedPictures, const Files& files)
{
    std::error_code ec;
    fs::create_directories(folder, ec);
    if (!fs::is_directory(folder, ec))
        return Error{"Quillet's folder " + quotedPath(folder) + " could not be made" +
                     (ec ? ": " + ec.message() : "") + "."};

    // Settings first: without them the program cannot be configured at all.
    if (!findPath(kSettingsFile, folder)) {
        if (const Status written = files.replace(folder / kSettingsFile, starterSettings()); !written)
            return written;
    }

    fs::directory_iterator entry(installedPictures, ec);
    if (ec)
        return Error{"The aircraft pictures could not be copied from " + quotedPath(installedPictures) +
                     ": " + ec.message() + "."};
    // Copied whole through a temporary file, so that an interrupted first start leaves no half picture.
    for (; entry != fs::directory_iterator(); entry.increment(ec)) {
        const fs::path& picture = entry->path();
        if (!entry->is_regular_file(ec) || lowerAscii(picture.extension().string()) != ".gif")
            continue;
        if (findPath(picture.filename().string(), folder))
            continue;
        const Result<std::string> bytes = files.read(picture, kPictureMaxBytes);
        if (!bytes)
            return bytes.error();
        if (const Status copied = files.replace(folder / picture.filename(), *bytes); !copied)
            return copied;
    }
    if (ec)
        return Error{"The aircraft pictures could not be copied from " + quotedPath(installedPictures) +
                     ": " + ec.message() + "."};
    return success();
}

} // namespace quillet
