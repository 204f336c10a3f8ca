#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace quillet {

// Screen readers (over AT-SPI on Linux) announce every control by its role and name. Qt names
// buttons, check boxes with a caption, frames and labels after their caption, and reads a control's
// tool tip as its description. Every other control a user operates or reads (text and combo boxes,
// picture boxes, a caption-less check box or hot spot) is named here, after what it shows or what
// it is for, in the words the window shows beside it. Picture boxes are announced as graphics;
// windows as frames (QMainWindow) or dialogs (QDialog), named by their titles.

// A control with a label beside it is named by that label, which becomes its buddy: screen readers
// follow that link, and on Linux it is the only name a combo box gets.
//
//     nameForScreenReaders(m_combo1, selectAircraftLabel);
void nameForScreenReaders(QWidget* control, QLabel* label);

// A control without a label of its own. The description, when given, replaces the tool tip as what
// is read after the name: say there what a click does. An empty name keeps the caption as the name.
//
//     nameForScreenReaders(cabin, "Cabin of the Beech 1900D", "Click a seat or a hold to load or empty it");
void nameForScreenReaders(QWidget* control, const QString& name, const QString& description = {});

// Has screen readers say a text that changed away from the focus, such as a new total. Qt before 6.8
// has no announcement: there the label's own name change is all a screen reader gets.
void announce(QWidget* source, const QString& text);

} // namespace quillet
