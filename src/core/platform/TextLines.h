#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillet {

// The lines of a text, each without its line end. The bytes are held once and each line is a place
// in them, so that a file of hundreds of lines is one allocation rather than one per line, and a copy
// holds lines of its own.
class TextLines {
public:
    TextLines() = default;
    // Splits at CR LF, LF or CR; a last line without a line end still counts. Bytes are kept as they
    // are, whatever their encoding.
    explicit TextLines(std::string_view bytes);

    std::size_t size() const { return m_lines.size(); }
    // The bytes of every line together, line ends left out.
    std::size_t bytes() const { return m_text.size(); }
    std::string_view operator[](std::size_t i) const
    {
        return std::string_view(m_text).substr(m_lines[i].first, m_lines[i].second);
    }

    void push_back(std::string_view line);
    void clear();

private:
    std::string m_text;
    std::vector<std::pair<std::size_t, std::size_t>> m_lines; // where each line starts, and its length
};

// How many lines TextLines finds in the bytes.
std::size_t countLines(std::string_view bytes);

} // namespace quillet
