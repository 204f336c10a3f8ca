#include "TextLines.h"

#include <algorithm>

namespace quillet {

namespace {

// Calls onLine with where each line of the bytes starts and how long it is, without its line end.
// Line ends are looked for with the library's search, not byte by byte, since files are read in full
// at every save.
template <class OnLine>
void forEachLine(std::string_view bytes, OnLine&& onLine)
{
    constexpr auto npos = std::string_view::npos;
    std::size_t cr = bytes.find('\r');
    std::size_t lf = bytes.find('\n');
    std::size_t start = 0;
    while (start < bytes.size()) {
        if (cr != npos && cr < start)
            cr = bytes.find('\r', start);
        if (lf != npos && lf < start)
            lf = bytes.find('\n', start);
        const std::size_t end = std::min(cr, lf);
        if (end == npos) {
            onLine(start, bytes.size() - start);
            return;
        }
        onLine(start, end - start);
        start = end + 1;
        if (bytes[end] == '\r' && start < bytes.size() && bytes[start] == '\n')
            ++start;
    }
}

} // namespace

TextLines::TextLines(std::string_view bytes) : m_text(bytes)
{
    forEachLine(bytes, [&](std::size_t start, std::size_t length) { m_lines.emplace_back(start, length); });
}

void TextLines::push_back(std::string_view line)
{
    m_lines.emplace_back(m_text.size(), line.size());
    m_text += line;
}

void TextLines::clear()
{
    m_text.clear();
    m_lines.clear();
}

std::size_t countLines(std::string_view bytes)
{
    std::size_t count = 0;
    forEachLine(bytes, [&](std::size_t, std::size_t) { ++count; });
    return count;
}

} // namespace quillet
