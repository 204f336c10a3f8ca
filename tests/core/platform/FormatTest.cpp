#include "platform/Format.h"

#include "platform/Date.h"
#include "platform/Random.h"

#include <clocale>
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

TEST(NumberFormats, WholeNumbersRoundHalvesAwayFromZero)
{
    EXPECT_EQ(format0(2.5), "3");
    EXPECT_EQ(format0(-2.5), "-3");
    EXPECT_EQ(format0(2.4999), "2");
    EXPECT_EQ(format0(182.6f), "183");
    EXPECT_EQ(format0(0), "0");
    EXPECT_EQ(format0(-0.4), "0") << "a value that rounds to zero has no sign";
    EXPECT_EQ(format0(1234567), "1234567") << "no thousands separator";
    EXPECT_EQ(format0(1e20), "100000000000000000000");
}

TEST(NumberFormats, OneDecimal)
{
    EXPECT_EQ(format1(0.45), "0.5");
    EXPECT_EQ(format1(1.15), "1.2") << "taken at 15 digits, as the user reads it";
    EXPECT_EQ(format1(220), "220.0");
    EXPECT_EQ(format1(1.0 / 2.2), "0.5");
    EXPECT_EQ(format1(-13), "-13.0");
    EXPECT_EQ(format1(-0.04), "0.0");
    EXPECT_EQ(format1(0.05), "0.1");
    EXPECT_EQ(format1(99.96), "100.0");
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

TEST(NumberFormats, HalvesToEven)
{
    EXPECT_EQ(roundHalfEven(2.5), 2);
    EXPECT_EQ(roundHalfEven(3.5), 4);
    EXPECT_EQ(roundHalfEven(-2.5), -2);
    EXPECT_EQ(roundHalfEven(0.0625, 3), 0.062);
    EXPECT_EQ(roundHalfEven(182.6f, 1), 182.6);
}

TEST(NumberFormats, ShortestPlainDecimal)
{
    EXPECT_EQ(shortestNumber(13.5f), "13.5");
    EXPECT_EQ(shortestNumber(-2.0f), "-2");
    EXPECT_EQ(shortestNumber(0.1f), "0.1");
    EXPECT_EQ(shortestNumber(0.0f), "0");
    EXPECT_EQ(shortestNumber(-0.0f), "0");
    EXPECT_EQ(shortestNumber(16950.0f), "16950");
    EXPECT_EQ(shortestNumber(1e10f), "10000000000");
    EXPECT_EQ(shortestNumber(182.6), "182.6");
}

TEST(LeadingNumber, ReadsTheLongestLeadingNumber)
{
    EXPECT_EQ(val("85 kg"), 85);
    EXPECT_EQ(val("abc"), 0);
    EXPECT_EQ(val(""), 0);
    EXPECT_EQ(val("-80"), -80);
    EXPECT_DOUBLE_EQ(val("182.6"), 182.6);
    EXPECT_EQ(val(" 1 7 0 lb"), 170) << "blanks inside the number are ignored";
    EXPECT_DOUBLE_EQ(val(".5"), 0.5);
    EXPECT_DOUBLE_EQ(val("-.5"), -0.5);
    EXPECT_EQ(val("1e3"), 1000);
    EXPECT_EQ(val("2e"), 2) << "an exponent without digits is not part of the number";
    EXPECT_EQ(val("+12"), 12);
    EXPECT_EQ(val("12,5"), 12) << "a comma ends the number";
    EXPECT_EQ(val("-"), 0);
    EXPECT_EQ(val("."), 0);
    EXPECT_EQ(val("1e999"), 0) << "a number too large to hold counts as none";
}

TEST(LeadingNumber, WholeFieldParsing)
{
    double v = -1;
    EXPECT_TRUE(parseNumber(" 13.5 ", v));
    EXPECT_EQ(v, 13.5);
    EXPECT_TRUE(parseNumber("-2", v));
    EXPECT_EQ(v, -2);
    EXPECT_TRUE(parseNumber("+1E+07", v));
    EXPECT_EQ(v, 1e7);
    EXPECT_FALSE(parseNumber("12abc", v));
    EXPECT_FALSE(parseNumber("abc", v));
    EXPECT_FALSE(parseNumber("", v));
    EXPECT_FALSE(parseNumber("1e999", v));
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
