#include "shell/Converter.h"

#include <gtest/gtest.h>
#include <utility>

namespace quillet {
namespace {

// The controls that show, kilogram row first.
std::string shown(const Converter& c)
{
    std::string text;
    for (const auto& [visible, name] : {std::pair{c.Textkg.visible, "kg box "},
                                        {c.Labelkg.visible, "kg label "},
                                        {c.TextLB.visible, "lb box "},
                                        {c.Labellb.visible, "lb label "}})
        text += visible ? name : "";
    return text;
}

// What typing 100 kg gives is checked through the main window's boxes.
TEST(KilogramPoundConverter, TheChainStopsWhenARoundTripGivesTheSameText)
{
    Converter c;
    int kgChanges = 0;
    int lbChanges = 0;
    c.Textkg.onChange = [&] {
        ++kgChanges;
        c.Textkg_Change();
    };
    c.TextLB.onChange = [&] {
        ++lbChanges;
        c.TextLB_Change();
    };
    c.TextLB.setText("1");
    EXPECT_EQ(c.Textkg.text(), "0.5");
    EXPECT_EQ(c.TextLB.text(), "1.1");
    EXPECT_EQ(c.Labelkg.text, "1") << "0.5 shown whole rounds away from zero";
    EXPECT_EQ(c.Labellb.text, "1");
    EXPECT_EQ(lbChanges, 2);
    EXPECT_EQ(kgChanges, 1);
}

TEST(KilogramPoundConverter, LettersCountAsZero)
{
    Converter c;
    c.Textkg.setText("abc");
    EXPECT_EQ(c.TextLB.text(), "0.0");
    EXPECT_EQ(c.Labellb.text, "0");
    EXPECT_EQ(c.Textkg.text(), "0.0");
    Converter d;
    d.TextLB.setText("lots");
    EXPECT_EQ(d.Textkg.text(), "0.0");
    EXPECT_EQ(d.Labelkg.text, "0");
}

TEST(KilogramPoundConverter, ChoosingARow)
{
    Converter c;
    EXPECT_TRUE(c.Textkg.visible && c.TextLB.visible) << "both entry boxes at start";
    c.Textkg.setText("10");
    c.TextLB_Click();
    EXPECT_EQ(shown(c), "kg label lb box ");
    c.Textkg_Click();
    EXPECT_EQ(shown(c), "kg box lb label ");

    // A click on the displayed row's label makes it the entry row, filled from the other row.
    c.Textkg.setText("50");
    c.Labellb_Click();
    EXPECT_EQ(shown(c), "kg label lb box ");
    EXPECT_EQ(c.TextLB.text(), "110.0");
    EXPECT_EQ(c.Labellb.text, "110");
    c.TextLB.setText("22");
    c.Labelkg_Click();
    EXPECT_EQ(shown(c), "kg box lb label ");
    EXPECT_EQ(c.Textkg.text(), "10.0");
    EXPECT_EQ(c.Labelkg.text, "10");
}

} // namespace
} // namespace quillet
