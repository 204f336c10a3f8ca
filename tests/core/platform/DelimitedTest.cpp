#include "platform/Delimited.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillet {
namespace {

std::vector<std::string> fields(std::string_view text)
{
    DelimitedReader reader(text);
    std::vector<std::string> out;
    while (auto field = reader.next())
        out.push_back(field->text);
    return out;
}

using Fields = std::vector<std::string>;

TEST(DelimitedReading, CommasAndLineEndsSeparateAndBlanksAreDropped)
{
    EXPECT_EQ(fields("  C:\\fs2000  \r\n3\r\nB737-300 , b737_300\r\n"),
              (Fields{"C:\\fs2000", "3", "B737-300", "b737_300"}));
}

TEST(DelimitedReading, QuotedFieldsMayHoldCommasAndLineEnds)
{
    EXPECT_EQ(fields("\"Lower Deck Cargo, Forward\",12.5\n\"two\nlines\",x"),
              (Fields{"Lower Deck Cargo, Forward", "12.5", "two\nlines", "x"}));
    EXPECT_EQ(fields("\"  kept  \""), (Fields{"  kept  "}));
}

TEST(DelimitedReading, AcceptsEveryLineEndAndAMissingFinalOne)
{
    EXPECT_EQ(fields("a\rb\nc\r\nd"), (Fields{"a", "b", "c", "d"}));
}

TEST(DelimitedReading, EmptyLinesBetweenFieldsAreSkippedButEmptyFieldsAreKept)
{
    EXPECT_EQ(fields("a\r\n\r\n\r\nb"), (Fields{"a", "b"}));
    EXPECT_EQ(fields("a,,b"), (Fields{"a", "", "b"}));
    EXPECT_EQ(fields("a,\r\nb"), (Fields{"a", "", "b"}));
    EXPECT_TRUE(fields("  \r\n \r\n").empty());
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
