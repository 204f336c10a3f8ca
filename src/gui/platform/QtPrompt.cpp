#include "QtPrompt.h"

#include "Twips.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>

namespace quillet {

std::optional<std::string> QtPrompt::inputBox(const std::string& prompt, const std::string& title,
                                              const std::string& defaultText)
{
    bool accepted = false;
    const QString answer =
        QInputDialog::getText(QApplication::activeWindow(), toQString(title), toQString(prompt),
                              QLineEdit::Normal, toQString(defaultText), &accepted);
    if (!accepted)
        return std::nullopt;
    return fromQString(answer);
}

SaveChoice QtPrompt::askToSave(const std::string& question, const std::string& title)
{
    const auto answer = QMessageBox::question(
        QApplication::activeWindow(), toQString(title), toQString(question),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Save)
        return SaveChoice::Save;
    if (answer == QMessageBox::Discard)
        return SaveChoice::Discard;
    return SaveChoice::Cancel;
}

} // namespace quillet
