#include "StationFile.h"

#include "platform/Delimited.h"
#include "platform/Format.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

namespace quillet {

namespace {

// Takes the fields of a station file one by one; the first problem met is kept and every later
// read is skipped, so the parser reads straight through and checks once at the end.
class FieldReader {
public:
    explicit FieldReader(std::string_view text) : m_reader(text) {}

    float number(const std::string& what)
    {
        const auto value = numeric(what, "a number");
        if (value && !std::isfinite(static_cast<float>(*value)))
            fail(m_last.line, what + " is too large: \"" + m_last.text + "\"");
        return ok() && value ? static_cast<float>(*value) : 0;
    }

    // A station can hold no more than the whole aircraft may weigh at take-off: anything above is a
    // typing slip, and would go into aircraft.cfg as a number the simulator cannot fly.
    float weight(const std::string& what, float maxtakeoff)
    {
        const float value = number(what);
        if (value < 0)
            fail(m_last.line, what + " is negative: \"" + m_last.text + "\"");
        else if (value > maxtakeoff)
            fail(m_last.line, what + " is \"" + m_last.text +
                                  "\" lb, more than the maximum take-off weight of " +
                                  shortestNumber(maxtakeoff) + " lb");
        return value;
    }

    int count(const std::string& what)
    {
        const std::string expected = "a whole number from 0 to " + std::to_string(kStationCapacity);
        const auto value = numeric(what, expected);
        if (value && (*value < 0 || *value > kStationCapacity || *value != std::floor(*value)))
            fail(m_last.line, what + " should be " + expected + " but is \"" + m_last.text + "\"");
        return ok() && value ? static_cast<int>(*value) : 0;
    }

    std::string label(const std::string& what)
    {
        const auto field = take(what);
        if (!field)
            return {};
        // A label becomes the end of a line of aircraft.cfg, where a "[" would end the weight and
        // balance section the next time the file is read.
        if (!field->quoted)
            fail(field->line, what + " should be a text in double quotes but is " + field->text);
        else if (field->textAfterQuote)
            fail(field->line, what + " \"" + field->text +
                                  "\" is followed by more text after its closing double quote; a double "
                                  "quote inside a label is written as two (\"\")");
        else if (field->text.find_first_of("\r\n") != std::string::npos)
            fail(field->line, what + " has no closing double quote on its line");
        else if (field->text.find('[') != std::string::npos)
            fail(field->line, what + " \"" + field->text +
                                  "\" holds a \"[\", which aircraft.cfg would read as a new section");
        return field->text;
    }

    void expectEnd()
    {
        if (ok() && !m_reader.atEnd())
            fail(m_reader.line(), "there is more data after the last station");
    }

    void fail(int line, const std::string& why)
    {
        if (ok())
            m_error = "line " + std::to_string(line) + ": " + why;
    }

    bool ok() const { return m_error.empty(); }
    const std::string& error() const { return m_error; }

private:
    std::optional<DelimitedReader::Field> take(const std::string& what)
    {
        if (!ok())
            return std::nullopt;
        auto field = m_reader.next();
        if (!field) {
            fail(m_last.line, "the file ends before " + what);
            return std::nullopt;
        }
        m_last = *field;
        return field;
    }

    std::optional<double> numeric(const std::string& what, const std::string& expected)
    {
        const auto field = take(what);
        if (!field)
            return std::nullopt;
        double value = 0;
        if (field->quoted)
            fail(field->line, what + " should be " + expected + ", not a text in double quotes");
        else if (!parseNumber(field->text, value))
            fail(field->line, what + " should be " + expected + " but is \"" + field->text + "\"");
        else
            return value;
        return std::nullopt;
    }

    DelimitedReader m_reader;
    std::string m_error;
    DelimitedReader::Field m_last; // the field read last
};

std::string rounded(float value, int decimals)
{
    return shortestNumber(roundHalfEven(value, decimals));
}

// The first two lines of the file, in their order: the counts are whole numbers, the limits any.
struct HeaderField {
    int LoadState::*count;
    float LoadState::*limit;
    const char* what;
};
constexpr HeaderField kHeader[] = {
    {&LoadState::cfgstations, nullptr, "the number of station_load lines"},
    {nullptr, &LoadState::maxtakeoff, "the maximum take-off weight"},
    {nullptr, &LoadState::maxlanding, "the maximum landing weight"},
    {nullptr, &LoadState::emptyweight, "the empty weight"},
    {nullptr, &LoadState::maxzerofuel, "the maximum zero-fuel weight"},
    {nullptr, &LoadState::maxfuel, "the fuel capacity"},
    {&LoadState::nstations, nullptr, "the number of person stations"},
    {&LoadState::ncargo, nullptr, "the number of cargo stations"},
    {&LoadState::nlower, nullptr, "the number of lower-deck holds"},
    {&LoadState::ncrew, nullptr, "the number of crew stations"},
    {&LoadState::seats1, nullptr, "the first-class seats"},
    {&LoadState::seats2, nullptr, "the second-class seats"},
    {&LoadState::seats3, nullptr, "the third-class seats"},
};
constexpr std::size_t kFirstLineFields = 6;

} // namespace

Result<LoadState> withStationFile(std::string_view text, LoadState state)
{
    // Notepad puts a UTF-8 mark before a file it saves; it is not part of the first number.
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    FieldReader in(text);
    for (const HeaderField& field : kHeader) {
        if (field.count)
            state.*field.count = in.count(field.what);
        else
            state.*field.limit = in.number(field.what);
    }
    if (in.ok() && state.stationsInUse() > kStationCapacity) {
        in.fail(2, "it lists " + std::to_string(state.nstations) + " person and " +
                       std::to_string(state.ncargo) + " cargo stations, more than the " +
                       std::to_string(kStationCapacity) + " this program can hold");
    }
    for (int i = 0; i < state.stationsInUse() && in.ok(); ++i) {
        const std::string which = "station " + std::to_string(i);
        state.stationname[i] = in.label("the label of " + which);
        state.stationx[i] = in.number("the x position of " + which);
        state.stationy[i] = in.number("the y position of " + which);
        state.stationz[i] = in.number("the z position of " + which);
        state.stationweight[i] = in.weight("the weight of " + which, state.maxtakeoff);
    }
    in.expectEnd();
    if (!in.ok())
        return Error{in.error()};
    return state;
}

std::string stationFileText(const LoadState& state)
{
    std::string text;
    for (std::size_t i = 0; i < std::size(kHeader); ++i) {
        const HeaderField& field = kHeader[i];
        text += field.count ? std::to_string(state.*field.count) : shortestNumber(state.*field.limit);
        text += i + 1 == kFirstLineFields || i + 1 == std::size(kHeader) ? "\r\n" : ",";
    }
    const int used = std::clamp(state.stationsInUse(), 0, kStationCapacity);
    for (int i = 0; i < used; ++i) {
        text += quotedField(state.stationname[i]) + "," + rounded(state.stationx[i], 3) + "," +
                rounded(state.stationy[i], 3) + "," + rounded(state.stationz[i], 3) + "," +
                rounded(state.stationweight[i], 1) + "\r\n";
    }
    return text;
}

} // namespace quillet
