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
    QAccessible::updateAccessibility(&event);
#else
    // A label reports its new text as a name change itself; older Qt can say no more.
    static_cast<void>(source);
    static_cast<void>(text);
#endif
}

} // namespace quillet
