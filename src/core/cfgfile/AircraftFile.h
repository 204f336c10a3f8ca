#pragma once

#include "platform/Result.h"
#include "platform/TextLines.h"

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace quillet {

// An aircraft.cfg as the line buffer holds it: each line's bytes without its line end, and how many
// lines of them the weight and balance section spans, its header included.
struct AircraftLines {
    TextLines lines;
    int sectionlines = 0;
};

// Whether the line holds "[WEIGHT_AND_BALANCE]", letter case aside.
bool isSectionHeader(std::string_view line);

// The lines of the first weight and balance section: its header and every line after it up to the
// next line holding "[". 0 when there is no section.
int measureSection(const TextLines& lines);

// The buffer for an aircraft.cfg's bytes. A file without the section gets an empty line and the
// header appended, so that the writer has a place for its block. Refused when the bytes are not text,
// hold nothing but blanks, or would not fit the buffer's lines; the error reads as a predicate of the file
// ("has 302 lines, ...").
Result<AircraftLines> bufferAircraftFile(std::string_view bytes, int capacity);

// Whether the block can replace the section without spoiling the file: the first line holding
// "[WEIGHT_AND_BALANCE]" must be a header line (nothing but blanks before it), and so must the line
// that ends the section (a "[" after blanks). The error names the line of `file` and says why.
Status checkSection(const TextLines& lines, int sectionlines, const std::filesystem::path& file);

// The new aircraft.cfg: every buffered line ended by CR LF, with `block` after the first section
// header in place of the old section's body.
std::string rewriteAircraftFile(const TextLines& lines, int sectionlines, std::span<const std::string> block);

} // namespace quillet
