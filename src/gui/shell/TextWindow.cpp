#include "TextWindow.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

namespace quillet {

TextWindow::TextWindow(const QString& caption, const QString& text, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(caption);
    auto* layout = new QVBoxLayout(this);
    auto* label = new QLabel(text, this);
    label->setObjectName(QStringLiteral("Label1"));
    label->setWordWrap(false);
    layout->addWidget(label);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
}

void TextWindow::done(int result)
{
    QDialog::done(result);
    if (onClosed)
        onClosed();
}

} // namespace quillet
