#include "QtPrompt.h"

#include "Twips.h"

#include <QApplication>
#include <QInputDialog>

namespace quillet {

std::optional<std::string> QtPrompt::inputBox(const std::string& prompt, const std::string& title,
                                              const std::string& defaultText)
{
    bool accepted = false;
    const QString answer = QInputDialog::getText(QApplication::activeWindow(), toQString(title), toQString(prompt),
                                                 QLineEdit::Normal, toQString(defaultText), &accepted);
    if (!accepted)
        return std::nullopt;
    return fromQString(answer);
}

} // namespace quillet
