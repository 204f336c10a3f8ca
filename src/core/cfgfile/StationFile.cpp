#include "StationFile.h"

#include "platform/Delimited.h"
#include "platform/Format.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

namespace quillet {

namespace {

// What a field is, for messages: "the empty weight", or "the label of station 12". Put into words
// only when a message needs it, since a file has thousands of fields.
struct What {
    std::string_view field;
    int station = -1;

    std::string text() const
    {
        std::string words(field);
        if (station >= 0)
            words += " station " + std::to_string(station);
        return words;
    }
};

// Takes the fields of a station file one by one; the first problem met is kept and every later
// read is skipped, so the parser reads straight through and checks once at the end.
class FieldReader {
public:
    explicit FieldReader(std::string_view text) : m_reader(text) {}

    float number(What what)
    {
        const auto value = numeric(what, "a number");
        if (value && !std::isfinite(static_cast<float>(*value)))
            fail(m_last.line, what.text() + " is too large: \"" + m_last.text + "\"");
        return ok() && value ? static_cast<float>(*value) : 0;
    }

    // A station can hold no more than the whole aircraft may weigh at take-off: anything above is a
    // typing slip, and would go into aircraft.cfg as a number the simulator cannot fly.
    float weight(What what, float maxtakeoff)
    {
        const float value = number(what);
        if (value < 0)
            fail(m_last.line, what.text() + " is negative: \"" + m_last.text + "\"");
        else if (value > maxtakeoff)
            fail(m_last.line, what.text() + " is \"" + m_last.text +
                                  "\" lb, more than the maximum take-off weight of " +
                                  shortestNumber(maxtakeoff) + " lb");
        return value;
    }

    int count(What what)
    {
        static const std::string expected = "a whole number from 0 to " + std::to_string(kStationCapacity);
        const auto value = numeric(what, expected);
        if (value && (*value < 0 || *value > kStationCapacity || *value != std::floor(*value)))
            fail(m_last.line, what.text() + " should be " + expected + " but is \"" + m_last.text + "\"");
        return ok() && value ? static_cast<int>(*value) : 0;
    }

    std::string label(What what)
    {
        const auto* field = take(what);
        if (!field)
            return {};
        // A label becomes the end of a line of aircraft.cfg, where a "[" would end the weight and
        // balance section the next time the file is read.
        if (!field->quoted)
            fail(field->line, what.text() + " should be a text in double quotes but is " + field->text);
        else if (field->textAfterQuote)
            fail(field->line, what.text() + " \"" + field->text +
                                  "\" is followed by more text after its closing double quote; a double "
                                  "quote inside a label is written as two (\"\")");
        else if (field->text.find_first_of("\r\n") != std::string::npos)
            fail(field->line, what.text() + " has no closing double quote on its line");
        else if (field->text.find('[') != std::string::npos)
            fail(field->line, what.text() + " \"" + field->text +
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
    // The next field, kept as the last one read; nothing once a problem is met.
    const DelimitedReader::Field* take(What what)
    {
        if (!ok())
            return nullptr;
        auto field = m_reader.next();
        if (!field) {
            fail(m_last.line, "the file ends before " + what.text());
            return nullptr;
        }
        m_last = std::move(*field);
        return &m_last;
    }

    std::optional<double> numeric(What what, std::string_view expected)
    {
        const auto* field = take(what);
        if (!field)
            return std::nullopt;
        double value = 0;
        if (field->quoted)
            fail(field->line,
                 what.text() + " should be " + std::string(expected) + ", not a text in double quotes");
        else if (!parseNumber(field->text, value))
            fail(field->line,
                 what.text() + " should be " + std::string(expected) + " but is \"" + field->text + "\"");
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
    int StationHeader::*count;
    float StationHeader::*limit;
    const char* what;
};
constexpr HeaderField kHeader[] = {
    {&StationHeader::cfgstations, nullptr, "the number of station_load lines"},
    {nullptr, &StationHeader::maxtakeoff, "the maximum take-off weight"},
    {nullptr, &StationHeader::maxlanding, "the maximum landing weight"},
    {nullptr, &StationHeader::emptyweight, "the empty weight"},
    {nullptr, &StationHeader::maxzerofuel, "the maximum zero-fuel weight"},
    {nullptr, &StationHeader::maxfuel, "the fuel capacity"},
    {&StationHeader::nstations, nullptr, "the number of person stations"},
    {&StationHeader::ncargo, nullptr, "the number of cargo stations"},
    {&StationHeader::nlower, nullptr, "the number of lower-deck holds"},
    {&StationHeader::ncrew, nullptr, "the number of crew stations"},
    {&StationHeader::seats1, nullptr, "the first-class seats"},
    {&StationHeader::seats2, nullptr, "the second-class seats"},
    {&StationHeader::seats3, nullptr, "the third-class seats"},
};
constexpr std::size_t kFirstLineFields = 6;

} // namespace

Result<LoadSnapshot> readStationFile(std::string_view text)
{
    // Notepad puts a UTF-8 mark before a file it saves; it is not part of the first number.
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    FieldReader in(text);
    StationHeader header;
    for (const HeaderField& field : kHeader) {
        if (field.count)
            header.*field.count = in.count({field.what});
        else
            header.*field.limit = in.number({field.what});
    }
    const int stations = header.nstations + header.ncargo;
    if (in.ok() && stations > kStationCapacity) {
        in.fail(2, "it lists " + std::to_string(header.nstations) + " person and " +
                       std::to_string(header.ncargo) + " cargo stations, more than the " +
                       std::to_string(kStationCapacity) + " this program can hold");
    }
    LoadSnapshot table;
    table.header = header;
    if (in.ok())
        table.stations.reserve(static_cast<std::size_t>(stations));
    for (int i = 0; i < stations && in.ok(); ++i) {
        LoadSnapshot::Station& row = table.stations.emplace_back();
        row.name = in.label({"the label of", i});
        row.x = in.number({"the x position of", i});
        row.y = in.number({"the y position of", i});
        row.z = in.number({"the z position of", i});
        row.weight = in.weight({"the weight of", i}, header.maxtakeoff);
        table.loadweight += row.weight;
    }
    in.expectEnd();
    if (!in.ok())
        return Error{in.error()};
    return table;
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
