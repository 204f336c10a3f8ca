#include "shell/Converter.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(KilogramPoundConverter, KilogramsTypedGivePounds)
{
    Converter c;
    c.Textkg.setText("100");
    EXPECT_EQ(c.TextLB.text(), "220.0");
    EXPECT_EQ(c.Labellb.text, "220");
    EXPECT_EQ(c.Textkg.text(), "100.0");
    EXPECT_EQ(c.Labelkg.text, "100");
}

TEST(KilogramPoundConverter, TheChainStopsWhenARoundTripGivesTheSameText)
{
    Converter c;
    int kgChanges = 0;
    int lbChanges = 0;
    c.Textkg.onChange = [&] { ++kgChanges; c.Textkg_Change(); };
    c.TextLB.onChange = [&] { ++lbChanges; c.TextLB_Change(); };
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

TEST(KilogramPoundConverter, BothEntryBoxesShowAtStart)
{
    Converter c;
    EXPECT_TRUE(c.Textkg.visible);
    EXPECT_TRUE(c.TextLB.visible);
    EXPECT_EQ(c.Label1.text, "kg");
    EXPECT_EQ(c.Label2.text, "lb");
}

struct Rows {
    bool textkg;
    bool labelkg;
    bool textlb;
    bool labellb;
};

Rows rowsOf(const Converter& c)
{
    return {c.Textkg.visible, c.Labelkg.visible, c.TextLB.visible, c.Labellb.visible};
}

void expectRows(const Converter& c, Rows want)
{
    const Rows got = rowsOf(c);
    EXPECT_EQ(got.textkg, want.textkg);
    EXPECT_EQ(got.labelkg, want.labelkg);
    EXPECT_EQ(got.textlb, want.textlb);
    EXPECT_EQ(got.labellb, want.labellb);
}

TEST(KilogramPoundConverter, ChoosingARow)
{
    Converter c;
    c.Textkg.setText("10");
    c.TextLB_Click();
    expectRows(c, {false, true, true, false});
    c.Textkg_Click();
    expectRows(c, {true, false, false, true});

    // A click on the displayed row's label makes it the entry row, filled from the other row.
    c.Textkg.setText("50");
    c.Labellb_Click();
    expectRows(c, {false, true, true, false});
    EXPECT_EQ(c.TextLB.text(), "110.0");
    EXPECT_EQ(c.Labellb.text, "110");

    c.TextLB.setText("22");
    c.Labelkg_Click();
    expectRows(c, {true, false, false, true});
    EXPECT_EQ(c.Textkg.text(), "10.0");
    EXPECT_EQ(c.Labelkg.text, "10");
}

} // namespace
} // namespace quillet
