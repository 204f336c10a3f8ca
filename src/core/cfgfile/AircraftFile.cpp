#include "AircraftFile.h"

#include "platform/Files.h"
#include "platform/Paths.h"

#include <algorithm>

namespace quillet {

namespace {

constexpr std::string_view kSectionHeader = "[weight_and_balance]";

// Whether only blanks come before position `end` of the line (and a UTF-8 mark on a file's first line).
bool blanksBefore(std::string_view line, std::size_t end, bool firstLine)
{
    std::size_t start = 0;
    if (firstLine && line.starts_with("\xEF\xBB\xBF"))
        start = 3;
    return end >= start && line.substr(start, end - start).find_first_not_of(" \t") == std::string_view::npos;
}

// Where the section header's name starts in the line, letter case aside, or npos.
std::size_t findSectionHeader(std::string_view line)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    for (std::size_t at = line.find('['); at != std::string_view::npos; at = line.find('[', at + 1)) {
        const std::string_view rest = line.substr(at, kSectionHeader.size());
        if (rest.size() == kSectionHeader.size() &&
            std::equal(rest.begin(), rest.end(), kSectionHeader.begin(),
                       [&](char a, char b) { return lower(a) == b; }))
            return at;
    }
    return std::string_view::npos;
}

} // namespace

bool isSectionHeader(std::string_view line)
{
    return findSectionHeader(line) != std::string_view::npos;
}

int measureSection(const TextLines& lines)
{
    int count = 0;
    bool inside = false;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string_view line = lines[i];
        if (inside) {
            // Any bracket ends it, a second weight and balance header too: only the first section is
            // replaced, so only its lines may be dropped.
            if (line.find('[') != std::string_view::npos)
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
    if (const auto notText = whyNotText(bytes))
        return Error{*notText};
    AircraftLines out;
    out.lines = TextLines(bytes);
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
    // An aircraft.cfg without a single setting is a file cut short or never filled, not an aircraft;
    // a section written into it would still leave the simulator nothing to fly.
    if (bytes.find_first_not_of(" \t\r\n") == std::string_view::npos) {
        return Error{std::string(bytes.empty() ? "is empty (0 bytes)" : "holds nothing but blank lines") +
                     ", so it describes no aircraft; put the aircraft's own aircraft.cfg back (an "
                     "aircraft.cfg.bak beside it holds the file as Quillet first found it)"};
    }
    if (!hasSection) {
        out.lines.push_back("");
        out.lines.push_back("[WEIGHT_AND_BALANCE]");
    }
    return out;
}

Status checkSection(const TextLines& lines, int sectionlines, const std::filesystem::path& file)
{
    std::size_t header = 0;
    while (header < lines.size() && !isSectionHeader(lines[header]))
        ++header;
    if (header == lines.size())
        return success();
    const auto lineOf = [&](std::size_t i) {
        return "line " + std::to_string(i + 1) + " of " + quotedPath(file) + ", \"" + std::string(lines[i]) +
               "\",";
    };
    const std::string_view line = lines[header];
    if (!blanksBefore(line, findSectionHeader(line), header == 0)) {
        return Error{
            lineOf(header) +
            " holds \"[WEIGHT_AND_BALANCE]\" after other text, so it is not the section's header line; "
            "saving would put the new section in its place. Take that text out of the line, then "
            "save again."};
    }
    const std::size_t end = header + static_cast<std::size_t>(std::max(sectionlines, 1));
    if (end < lines.size() && !blanksBefore(lines[end], lines[end].find('['), false)) {
        return Error{
            lineOf(end) +
            " ends the [WEIGHT_AND_BALANCE] section because it holds a \"[\", but it is not a section "
            "header line; saving would leave the old section's lines after it below the new ones. "
            "Take the \"[\" out of that line, then save again."};
    }
    return success();
}

std::string rewriteAircraftFile(const TextLines& lines, int sectionlines, std::span<const std::string> block)
{
    std::string out;
    std::size_t size = lines.bytes() + 2 * lines.size();
    for (const std::string& line : block)
        size += line.size() + 2;
    out.reserve(size);
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
