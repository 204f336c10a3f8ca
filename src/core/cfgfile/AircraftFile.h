#pragma once

#include "platform/Result.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillet {

// An aircraft.cfg as the line buffer holds it: each line's bytes without its line end, and how many
// lines of them the weight and balance section spans, its header included.
struct AircraftLines {
    std::vector<std::string> lines;
    int sectionlines = 0;
};

// Splits at CR LF, LF or CR; a last line without a line end still counts. Bytes are kept as they are,
// whatever their encoding.
std::vector<std::string> splitLines(std::string_view bytes);
// How many lines splitLines finds.
std::size_t countLines(std::string_view bytes);

// Whether the line holds "[WEIGHT_AND_BALANCE]", letter case aside.
bool isSectionHeader(std::string_view line);

// The lines of the first weight and balance section: its header and every line after it up to the
// next line holding "[". 0 when there is no section.
int measureSection(std::span<const std::string> lines);

// The buffer for an aircraft.cfg's bytes. A file without the section gets an empty line and the
// header appended, so that the writer has a place for its block. Refused when the bytes are not text,
// hold nothing but blanks, or would not fit the buffer's lines; the error reads as a predicate of the file
// ("has 302 lines, ...").
Result<AircraftLines> bufferAircraftFile(std::string_view bytes, int capacity);

// Whether the block can replace the section without spoiling the file: the first line holding
// "[WEIGHT_AND_BALANCE]" must be a header line (nothing but blanks before it), and so must the line
// that ends the section (a "[" after blanks). The error names the line of `fileName` and says why.
Status checkSection(std::span<const std::string> lines, int sectionlines, const std::string& fileName);

// The new aircraft.cfg: every buffered line ended by CR LF, with `block` after the first section
// header in place of the old section's body.
std::string rewriteAircraftFile(std::span<const std::string> lines, int sectionlines,
                                std::span<const std::string> block);

} // namespace quillet
