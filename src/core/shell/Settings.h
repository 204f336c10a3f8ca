#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillet {

inline constexpr std::string_view kSettingsFile = "quillet.ini";
inline constexpr std::string_view kDefaultSimFolder = "C:\\program files\\microsoft games\\fs2000";
// Far more than 21 entries ever need; a larger file is not a settings file.
inline constexpr std::uintmax_t kSettingsMaxBytes = 64 * 1024;

struct MenuEntry {
    std::string type;
    std::string folder;
};

// The contents of quillet.ini: the simulator folder and the active aircraft menu.
struct Settings {
    std::string simfolder;
    std::vector<MenuEntry> entries;
    // What did not fit or was missing, worded for the user; the entries above are still usable.
    std::vector<std::string> problems;
};

// Reads the file's bytes field by field: line 1 the simulator folder, line 2 the number of entries,
// then the type string and folder of each entry. A blank line is an empty field. At most `capacity`
// entries are taken.
Settings parseSettings(std::string_view bytes, std::size_t capacity);

// The file's bytes, lines ended by CR LF; a text is quoted only when it could not be read back
// otherwise (a folder holding a comma).
std::string formatSettings(std::string_view simfolder, const std::vector<MenuEntry>& entries);

// What of the file's bytes would be lost if the settings read from them were written back, as a
// predicate of the file ("holds \"abc\" on line 2, ..."); nothing when every field would be kept.
// Blanks around fields, quotes that are not needed and the kind of line end are not content.
std::optional<std::string> settingsNotKept(std::string_view bytes, std::size_t capacity);

} // namespace quillet
