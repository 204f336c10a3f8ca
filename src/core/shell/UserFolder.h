#pragma once

#include "platform/Files.h"
#include "platform/Result.h"

#include <filesystem>
#include <string>

namespace quillet {

// An installed Quillet works in a folder of the user's own, which has to look like a program
// folder: the aircraft pictures beside quillet.ini and the station files. On every start this makes
// the folder if it is missing, copies in each installed picture it lacks, and writes a starter
// quillet.ini when there is none. Nothing already there is ever replaced, so the user's settings,
// saved loads and own pictures stay as they are.
Status prepareUserFolder(const std::filesystem::path& folder, const std::filesystem::path& installedPictures,
                         const Files& files);

// The settings a new user starts with: the usual simulator folder and every supported type, none
// with an aircraft folder yet, so the configuration dialog offers them all.
std::string starterSettings();

} // namespace quillet
