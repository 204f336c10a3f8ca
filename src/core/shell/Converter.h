#pragma once

#include "platform/Controls.h"

namespace quillet {

// The kilogram/pound converter of the main window. Each row has an entry box and, in the same place,
// a display label; the user types in one row and reads the other.
class Converter {
public:
    static constexpr double kPoundsPerKilogram = 2.2;

    Converter();
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    TextBoxState Textkg{"0"};
    LabelState Labelkg;
    LabelState Label1;
    TextBoxState TextLB{"0"};
    LabelState Labellb;
    LabelState Label2;

    void Textkg_Change();
    void TextLB_Change();
    void Textkg_Click();
    void TextLB_Click();
    void Labelkg_Click();
    void Labellb_Click();

private:
    void showKilogramEntry();
    void showPoundEntry();
};

} // namespace quillet
