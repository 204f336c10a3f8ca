#pragma once

#include "platform/Controls.h"

#include <QPixmap>
#include <filesystem>

class QComboBox;
class QLabel;
class QLineEdit;

namespace quillet {

class Messages;

// Copy the core's control state onto the widgets.
void showState(QLabel* label, const LabelState& state);
void showState(QLineEdit* edit, const TextBoxState& state);
void showState(QComboBox* combo, const ComboState& state);

// A picture file as a pixmap; a file that cannot be decoded is reported once and shows nothing.
QPixmap loadPicture(const std::filesystem::path& file, Messages& messages);

} // namespace quillet
