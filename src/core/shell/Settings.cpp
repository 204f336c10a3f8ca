#include "Settings.h"

#include "platform/Delimited.h"
#include "platform/Files.h"
#include "platform/Format.h"

#include <cmath>

namespace quillet {

Settings parseSettings(std::string_view bytes, std::size_t capacity)
{
    Settings settings;
    DelimitedReader reader(bytes, DelimitedReader::BlankLines::AreFields);
    if (auto folder = reader.next())
        settings.simfolder = folder->text;
    else
        settings.problems.push_back("it is empty");

    // A count that is not a number reads as 0; a fraction counts its whole entries.
    double announced = 0;
    if (auto count = reader.next())
        announced = std::floor(std::max(0.0, val(count->text)));
    else if (settings.problems.empty())
        settings.problems.push_back("it has no line with the number of aircraft");

    const std::size_t wanted = announced > 1e6 ? 1000000 : static_cast<std::size_t>(announced);
    for (std::size_t i = 0; i < wanted && settings.entries.size() < capacity; ++i) {
        auto type = reader.next();
        auto folder = type ? reader.next() : std::nullopt;
        if (!folder) {
            settings.problems.push_back("it announces " + std::to_string(wanted) +
                                        " aircraft but ends after " +
                                        std::to_string(settings.entries.size()));
            return settings;
        }
        settings.entries.push_back({type->text, folder->text});
    }
    if (wanted > capacity) {
        settings.problems.push_back("it lists " + std::to_string(wanted) + " aircraft, more than the " +
                                    std::to_string(capacity) + " the menu holds; the first " +
                                    std::to_string(capacity) + " are used");
    }
    return settings;
}

std::string formatSettings(std::string_view simfolder, const std::vector<MenuEntry>& entries)
{
    std::string out = fieldAsNeeded(simfolder);
    out += "\r\n" + format0(static_cast<double>(entries.size())) + "\r\n";
    for (const MenuEntry& entry : entries)
        out += fieldAsNeeded(entry.type) + "," + fieldAsNeeded(entry.folder) + "\r\n";
    return out;
}

std::optional<std::string> settingsNotKept(std::string_view bytes, std::size_t capacity)
{
    if (auto notText = whyNotText(bytes))
        return notText;
    const Settings settings = parseSettings(bytes, capacity);
    const std::string written = formatSettings(settings.simfolder, settings.entries);
    DelimitedReader before(bytes, DelimitedReader::BlankLines::AreFields);
    DelimitedReader after(written, DelimitedReader::BlankLines::AreFields);
    while (auto field = before.next()) {
        const auto kept = after.next();
        if (!kept || kept->text != field->text) {
            return "holds \"" + field->text + "\" on line " + std::to_string(field->line) +
                   ", which Quillet cannot keep as it stands";
        }
    }
    return std::nullopt;
}

} // namespace quillet
