#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillet {

// Reads a text field by field the classic delimited way: a field ends at a comma or at the end of a
// line (CR LF, LF or CR), blanks before and after it are dropped, and a field that begins with a double
// quote runs to the next single double quote and may hold commas and line ends; a doubled double
// quote inside it stands for one. Empty lines between fields are skipped, so fields may be spread over
// lines, unless they are read as empty fields.
class DelimitedReader {
public:
    struct Field {
        std::string text;
        bool quoted = false;
        bool textAfterQuote = false; // text between the closing quote and the delimiter, dropped
        int line = 1;                // where the field starts, from 1
    };
    enum class BlankLines { Skipped, AreFields };

    explicit DelimitedReader(std::string_view text, BlankLines blankLines = BlankLines::Skipped)
        : m_text(text), m_blankLines(blankLines)
    {
    }

    // The next field, or nothing at the end of the text.
    std::optional<Field> next();
    // Whether anything but blanks and line ends is left.
    bool atEnd();
    int line() const { return m_line; }

private:
    void skipBlanks();
    bool atLineEnd() const;
    void takeLineEnd();

    std::string_view m_text;
    BlankLines m_blankLines;
    std::size_t m_pos = 0;
    int m_line = 1;
    bool m_afterComma = false;
};

// A text field as the classic delimited writer puts it: in double quotes, a double quote inside doubled
// so that it reads back whole.
std::string quotedField(std::string_view text);

// A text field written so that it reads back whole: in double quotes only when it needs them (a comma,
// a line end, a leading double quote, or blanks at either end).
std::string fieldAsNeeded(std::string_view text);

} // namespace quillet
