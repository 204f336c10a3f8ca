#pragma once

#include "platform/Controls.h"

#include <QPixmap>
#include <filesystem>

class QComboBox;
class QLabel;
class QLineEdit;
class QMainWindow;
class QWidget;

namespace quillet {

class Messages;

// Copy the core's control state onto the widgets.
void showState(QLabel* label, const LabelState& state);
void showState(QLineEdit* edit, const TextBoxState& state);
void showState(QComboBox* combo, const ComboState& state);

// Puts a top-level window in the middle of its screen's available area.
void centreOnScreen(QWidget* window);

// A window larger than its screen's available area is made scrollable and fitted into that area,
// top left, so that its title bar and close button stay on the screen. Called as it is shown.
void fitOnScreen(QMainWindow* window);

// A picture file as a pixmap; a file that cannot be decoded is reported once and shows nothing.
QPixmap loadPicture(const std::filesystem::path& file, Messages& messages);

} // namespace quillet
