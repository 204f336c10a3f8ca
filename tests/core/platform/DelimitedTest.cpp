#include "platform/Delimited.h"

#include <gtest/gtest.h>
#include <vector>

namespace quillet {
namespace {

using Fields = std::vector<std::string>;

Fields fields(std::string_view text)
{
    DelimitedReader reader(text);
    Fields out;
    while (auto field = reader.next())
        out.push_back(field->text);
    return out;
}

TEST(DelimitedReading, SplitsFieldsTheWayHandWrittenFilesNeed)
{
    const std::pair<std::string_view, Fields> cases[] = {
        // Commas and line ends separate; blanks around a field are dropped.
        {"  C:\\fs2000  \r\n3\r\nB737-300 , b737_300\r\n", {"C:\\fs2000", "3", "B737-300", "b737_300"}},
        // Quoted fields may hold commas, line ends and blanks.
        {"\"Lower Deck Cargo, Forward\",12.5\n\"two\nlines\",x",
         {"Lower Deck Cargo, Forward", "12.5", "two\nlines", "x"}},
        {"\"  kept  \"", {"  kept  "}},
        // Every line end, and a missing final one.
        {"a\rb\nc\r\nd", {"a", "b", "c", "d"}},
        // Empty lines between fields are skipped, but empty fields are kept.
        {"a\r\n\r\n\r\nb", {"a", "b"}},
        {"a,,b", {"a", "", "b"}},
        {"a,\r\nb", {"a", "", "b"}},
        {"  \r\n \r\n", {}},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(fields(text), expected) << text;
}

TEST(DelimitedReading, TellsTheLineOfEachField)
{
    DelimitedReader reader("a,b\r\n\"x\r\ny\"\r\nc");
    EXPECT_EQ(reader.next()->line, 1);
    EXPECT_EQ(reader.next()->line, 1);
    EXPECT_EQ(reader.next()->line, 2);
    EXPECT_EQ(reader.next()->line, 4);
    EXPECT_FALSE(reader.next());
}

} // namespace
} // namespace quillet
