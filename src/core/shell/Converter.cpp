#include "Converter.h"

#include "platform/Format.h"

namespace quillet {

Converter::Converter()
{
    // At start both entry boxes cover their labels, so either row can be typed in.
    Labelkg.text = "0";
    Label1.text = "kg";
    Labellb.text = "0";
    Label2.text = "lb";
    Textkg.onChange = [this] { Textkg_Change(); };
    TextLB.onChange = [this] { TextLB_Change(); };
}

// The two change events answer each other until a round trip gives the same text.
void Converter::Textkg_Change()
{
    const double kg = val(Textkg.text());
    Labellb.text = format0(kg * kPoundsPerKilogram);
    TextLB.setText(format1(kg * kPoundsPerKilogram));
    Labelkg.text = format0(kg);
}

void Converter::TextLB_Change()
{
    const double lb = val(TextLB.text());
    Labelkg.text = format0(lb / kPoundsPerKilogram);
    Textkg.setText(format1(lb / kPoundsPerKilogram));
    Labellb.text = format0(lb);
}

void Converter::showKilogramEntry()
{
    Textkg.visible = true;
    Labelkg.visible = false;
    TextLB.visible = false;
    Labellb.visible = true;
}

void Converter::showPoundEntry()
{
    Textkg.visible = false;
    Labelkg.visible = true;
    TextLB.visible = true;
    Labellb.visible = false;
}

void Converter::Textkg_Click()
{
    showKilogramEntry();
}

void Converter::TextLB_Click()
{
    showPoundEntry();
}

void Converter::Labellb_Click()
{
    showPoundEntry();
    const double kg = val(Textkg.text());
    Labellb.text = format0(kg * kPoundsPerKilogram);
    TextLB.setText(format1(kg * kPoundsPerKilogram));
}

void Converter::Labelkg_Click()
{
    showKilogramEntry();
    const double lb = val(TextLB.text());
    Labelkg.text = format0(lb / kPoundsPerKilogram);
    Textkg.setText(format1(lb / kPoundsPerKilogram));
}

} // namespace quillet
