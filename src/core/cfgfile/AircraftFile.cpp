#include "AircraftFile.h"

#include "platform/Paths.h"

namespace quillet {

namespace {

constexpr std::string_view kSectionHeader = "[weight_and_balance]";

} // namespace

std::vector<std::string> splitLines(std::string_view bytes)
{
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] != '\r' && bytes[i] != '\n')
            continue;
        lines.emplace_back(bytes.substr(start, i - start));
        if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n')
            ++i;
        start = i + 1;
    }
    if (start < bytes.size())
        lines.emplace_back(bytes.substr(start));
    return lines;
}

bool isSectionHeader(std::string_view line)
{
    return lowerAscii(line).find(kSectionHeader) != std::string::npos;
}

int measureSection(std::span<const std::string> lines)
{
    int count = 0;
    bool inside = false;
    for (const std::string& line : lines) {
        if (inside) {
            // Any bracket ends it, a second weight and balance header too: only the first section is
            // replaced, so only its lines may be dropped.
            if (line.find('[') != std::string::npos)
                break;
            ++count;
        } else if (isSectionHeader(line)) {
            inside = true;
            ++count;
        }
    }
    return count;
}

Result<AircraftLines> bufferAircraftFile(std::string_view bytes, int capacity)
{
    AircraftLines out;
    out.lines = splitLines(bytes);
    out.sectionlines = measureSection(out.lines);
    const bool hasSection = out.sectionlines > 0;
    const int fileLines = static_cast<int>(out.lines.size());
    const int limit = hasSection ? capacity : capacity - 2;
    if (fileLines > limit) {
        std::string why = "has " + std::to_string(fileLines) + " lines, more than the " +
                          std::to_string(limit) + " this program can keep";
        if (!hasSection)
            why += " for a file without a [WEIGHT_AND_BALANCE] section (two lines are added for it)";
        return Error{why};
    }
    if (!hasSection) {
        out.lines.emplace_back();
        out.lines.emplace_back("[WEIGHT_AND_BALANCE]");
    }
    return out;
}

std::string rewriteAircraftFile(std::span<const std::string> lines, int sectionlines,
                                std::span<const std::string> block)
{
    std::string out;
    bool blockWritten = false;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        out += lines[i];
        out += "\r\n";
        if (!blockWritten && isSectionHeader(lines[i])) {
            blockWritten = true;
            for (const std::string& line : block) {
                out += line;
                out += "\r\n";
            }
            if (sectionlines > 1)
                i += static_cast<std::size_t>(sectionlines - 1); // the old body
        }
    }
    return out;
}

} // namespace quillet
