#include "platform/Format.h"

#include "platform/Date.h"
#include "platform/Random.h"

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <locale>
#include <string>
#include <string_view>

// glibc's setlocale keeps a copy of LOCPATH, through which the tests find their generated locale,
// for the rest of the process: not a leak of ours.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:argz_add_sep\n";
}

namespace quillet {
namespace {

// Whole numbers round halves away from zero, one decimal is taken at 15 digits as the user reads it
// (1.15 is 1.2), a value that rounds to zero has no sign, and there is no thousands separator.
TEST(NumberFormats, WholeAndOneDecimal)
{
    const std::pair<double, const char*> whole[] = {
        {2.5, "3"}, {-2.5, "-3"}, {2.4999, "2"},        {182.6f, "183"},
        {0, "0"},   {-0.4, "0"},  {1234567, "1234567"}, {1e20, "100000000000000000000"}};
    for (const auto& [value, text] : whole)
        EXPECT_EQ(format0(value), text) << value;
    const std::pair<double, const char*> oneDecimal[] = {{0.45, "0.5"},      {1.15, "1.2"},   {220, "220.0"},
                                                         {1.0 / 2.2, "0.5"}, {-13, "-13.0"},  {-0.04, "0.0"},
                                                         {0.05, "0.1"},      {99.96, "100.0"}};
    for (const auto& [value, text] : oneDecimal)
        EXPECT_EQ(format1(value), text) << value;
}

// Switches the C and C++ locales to one with a decimal comma, if one is installed, for as long as it
// lives. Windows names its locales its own way, and its C++ library knows only the "C" one.
struct DecimalCommaLocale {
    DecimalCommaLocale()
    {
#ifdef _WIN32
        for (const char* name : {"German_Germany.1252", "de-DE", "French_France.1252"}) {
            if ((active = std::setlocale(LC_ALL, name) != nullptr))
                return;
        }
#else
        for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "fr_FR.utf8"}) {
            if ((active = std::setlocale(LC_ALL, name) != nullptr)) {
                std::locale::global(std::locale(name));
                return;
            }
        }
#endif
    }
    ~DecimalCommaLocale()
    {
        std::setlocale(LC_ALL, saved.c_str());
        std::locale::global(std::locale::classic());
    }

    const std::string saved = std::setlocale(LC_ALL, nullptr) ? std::setlocale(LC_ALL, nullptr) : "C";
    bool active = false;
};

TEST(NumberFormats, IgnoreTheLocale)
{
    DecimalCommaLocale locale;
    if (!locale.active) {
        // The test command generates one; in CI its absence is a broken set-up, not a reason to skip.
        const char* ci = std::getenv("CI");
        if (ci && std::string_view(ci) == "true")
            FAIL() << "no locale with a decimal comma is installed (de_DE.UTF-8 or fr_FR.UTF-8)";
        GTEST_SKIP() << "no locale with a decimal comma installed";
    }
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");

    EXPECT_EQ(format1(2.5), "2.5");
    EXPECT_EQ(format0(1234567.5), "1234568");
    EXPECT_EQ(shortestNumber(13.5f), "13.5");
    EXPECT_DOUBLE_EQ(val("2.5"), 2.5);
    EXPECT_EQ(val("12,5"), 12);
    double parsed = 0;
    EXPECT_TRUE(parseNumber("-3.25", parsed));
    EXPECT_EQ(parsed, -3.25);
}

TEST(NumberFormats, HalvesToEvenAndShortestPlainDecimal)
{
    EXPECT_EQ(roundHalfEven(2.5), 2);
    EXPECT_EQ(roundHalfEven(3.5), 4);
    EXPECT_EQ(roundHalfEven(-2.5), -2);
    EXPECT_FALSE(std::signbit(roundHalfEven(-0.4))) << "a negative zero would be shown as -0";
    EXPECT_EQ(roundHalfEven(0.0625, 3), 0.062);
    EXPECT_EQ(roundHalfEven(182.6f, 1), 182.6);

    const std::pair<float, const char*> shortest[] = {
        {13.5f, "13.5"}, {-2.0f, "-2"},       {0.1f, "0.1"},         {0.0f, "0"},
        {-0.0f, "0"},    {16950.0f, "16950"}, {1e10f, "10000000000"}};
    for (const auto& [value, text] : shortest)
        EXPECT_EQ(shortestNumber(value), text) << value;
    EXPECT_EQ(shortestNumber(182.6), "182.6");
}

// The longest leading number: blanks inside it are ignored, an exponent without digits and a comma end
// it, and a number too large to hold counts as none.
TEST(LeadingNumber, ReadsTheLongestLeadingNumber)
{
    const std::pair<const char*, double> cases[] = {
        {"85 kg", 85}, {"abc", 0},    {"", 0},       {"-80", -80},   {"182.6", 182.6}, {" 1 7 0 lb", 170},
        {".5", 0.5},   {"-.5", -0.5}, {"1e3", 1000}, {"2e", 2},      {"+12", 12},      {"12,5", 12},
        {"-", 0},      {".", 0},      {"1e999", 0},  {"1e 3", 1000}, {"1e -3", 0.001}, {"1e1 2", 1e12}};
    for (const auto& [text, value] : cases)
        EXPECT_DOUBLE_EQ(val(text), value) << text;
}

TEST(LeadingNumber, WholeFieldParsing)
{
    const std::pair<const char*, double> numbers[] = {{" 13.5 ", 13.5}, {"-2", -2}, {"+1E+07", 1e7}};
    for (const auto& [text, value] : numbers) {
        double v = -1;
        EXPECT_TRUE(parseNumber(text, v)) << text;
        EXPECT_EQ(v, value);
    }
    double v = -1;
    for (const char* text : {"12abc", "abc", "", "1e999"})
        EXPECT_FALSE(parseNumber(text, v)) << text;
}

TEST(DateText, DayWithoutLeadingZeroAndEnglishMonth)
{
    EXPECT_EQ(formatDate({2001, 3, 7}), "7 Mar 2001");
    EXPECT_EQ(formatDate({2026, 11, 22}), "22 Nov 2026");
    EXPECT_EQ(formatDate({1999, 12, 31}), "31 Dec 1999");
}

TEST(RandomGenerator, FixedSeedGivesTheSameSequenceInUnitRange)
{
    SeededRandom first;
    SeededRandom second;
    for (int i = 0; i < 1000; ++i) {
        const double a = first.next();
        EXPECT_EQ(a, second.next());
        EXPECT_GE(a, 0.0);
        EXPECT_LT(a, 1.0);
    }
}

} // namespace
} // namespace quillet
