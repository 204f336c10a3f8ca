#include "Accessibility.h"

#include <QLabel>
#include <QWidget>

namespace quillet {

void nameForScreenReaders(QWidget* control, QLabel* label)
{
    label->setBuddy(control);
    control->setAccessibleName(label->text());
}

void nameForScreenReaders(QWidget* control, const QString& name, const QString& description)
{
    if (!name.isEmpty())
        control->setAccessibleName(name);
    if (!description.isEmpty())
        control->setAccessibleDescription(description);
}

} // namespace quillet
