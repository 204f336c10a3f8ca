#include "Accessibility.h"

#include <QAccessible>
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

void announce(QWidget* source, const QString& text)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(source, text);
#else
    static_cast<void>(text);
    QAccessibleEvent event(source, QAccessible::NameChanged);
#endif
    QAccessible::updateAccessibility(&event);
}

} // namespace quillet
