#include "Delimited.h"

#include <algorithm>

namespace quillet {

void DelimitedReader::skipBlanks()
{
    while (m_pos < m_text.size() && (m_text[m_pos] == ' ' || m_text[m_pos] == '\t'))
        ++m_pos;
}

bool DelimitedReader::atLineEnd() const
{
    return m_pos < m_text.size() && (m_text[m_pos] == '\r' || m_text[m_pos] == '\n');
}

void DelimitedReader::takeLineEnd()
{
    if (m_text[m_pos] == '\r' && m_pos + 1 < m_text.size() && m_text[m_pos + 1] == '\n')
        ++m_pos;
    ++m_pos;
    ++m_line;
}

bool DelimitedReader::atEnd()
{
    if (m_afterComma)
        return false; // a comma promises one more field, empty if need be
    // Blank lines at the very end are no fields.
    if (m_blankLines == BlankLines::AreFields)
        return m_text.find_first_not_of(" \t\r\n", m_pos) == std::string_view::npos;
    for (;;) {
        skipBlanks();
        if (!atLineEnd())
            return m_pos >= m_text.size();
        takeLineEnd();
    }
}

std::optional<DelimitedReader::Field> DelimitedReader::next()
{
    if (atEnd())
        return std::nullopt;
    m_afterComma = false;
    skipBlanks();

    Field field;
    field.line = m_line;
    constexpr auto npos = std::string_view::npos;
    if (m_pos < m_text.size() && m_text[m_pos] == '"') {
        field.quoted = true;
        ++m_pos;
        // The text is taken a run at a time, from one double quote to the next.
        while (m_pos < m_text.size()) {
            const std::size_t quote = std::min(m_text.find('"', m_pos), m_text.size());
            const std::string_view run = m_text.substr(m_pos, quote - m_pos);
            for (std::size_t at = run.find_first_of("\r\n"); at != npos;
                 at = run.find_first_of("\r\n", at + 1)) {
                const std::size_t where = m_pos + at;
                if (m_text[where] == '\n' || where + 1 >= m_text.size() || m_text[where + 1] != '\n')
                    ++m_line;
            }
            field.text += run;
            m_pos = quote;
            // A doubled quote stands for one; a single one closes the field.
            if (m_pos + 1 >= m_text.size() || m_text[m_pos + 1] != '"')
                break;
            field.text += '"';
            m_pos += 2;
        }
        if (m_pos < m_text.size())
            ++m_pos; // closing quote
        // Anything between the closing quote and the delimiter is dropped; the caller may refuse it.
        skipBlanks();
        const std::size_t end = std::min(m_text.find_first_of(",\r\n", m_pos), m_text.size());
        field.textAfterQuote = end > m_pos;
        m_pos = end;
    } else {
        const std::size_t end = std::min(m_text.find_first_of(",\r\n", m_pos), m_text.size());
        const std::string_view text = m_text.substr(m_pos, end - m_pos);
        field.text = text.substr(0, text.find_last_not_of(" \t") + 1);
        m_pos = end;
    }

    if (m_pos < m_text.size()) {
        if (m_text[m_pos] == ',') {
            ++m_pos;
            m_afterComma = true;
        } else {
            takeLineEnd();
        }
    }
    return field;
}

std::string quotedField(std::string_view text)
{
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"')
            out += '"';
        out += c;
    }
    out += '"';
    return out;
}

std::string fieldAsNeeded(std::string_view text)
{
    const bool needsQuotes = text.find_first_of(",\r\n") != std::string_view::npos || text.starts_with('"') ||
                             text.starts_with(' ') || text.starts_with('\t') || text.ends_with(' ') ||
                             text.ends_with('\t');
    return needsQuotes ? quotedField(text) : std::string(text);
}

} // namespace quillet
