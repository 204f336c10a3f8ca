#pragma once

#include <QAccessible>
#include <QComboBox>
#include <QStringList>
#include <QWidget>

namespace quillet {

// What a screen reader hears of a widget.
inline QString accessibleName(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

// What a screen reader calls a control: the label it is the buddy of, where it has one, else its name.
inline QString accessibleLabel(QWidget* widget)
{
    QAccessibleInterface* announced = QAccessible::queryAccessibleInterface(widget);
    const auto labels = announced->relations(QAccessible::Label);
    return labels.isEmpty() ? announced->text(QAccessible::Name)
                            : labels.first().first->text(QAccessible::Name);
}

inline QAccessible::Role accessibleRole(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget)->role();
}

// The controls of a window that a screen reader could not name, or would list as a "filler"
// (a plain widget with no role of its own). Every visible widget counts except containers (a plain
// widget holding others, a frame), lines, markers that let the mouse through to what lies under
// them, and the insides of combo boxes and menus, which Qt names itself.
inline QStringList unnamedControls(QWidget* window)
{
    QStringList unnamed;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        if (widget->isWindow() || !widget->isVisibleTo(window) ||
            widget->testAttribute(Qt::WA_TransparentForMouseEvents))
            continue;
        bool inside = false;
        for (QWidget* up = widget->parentWidget(); up && up != window; up = up->parentWidget())
            inside = inside || up->isWindow() || qobject_cast<QComboBox*>(up);
        if (inside)
            continue;
        const QAccessible::Role role = accessibleRole(widget);
        const bool container = !widget->findChildren<QWidget*>(Qt::FindDirectChildrenOnly).isEmpty();
        if ((role == QAccessible::Client && container) || role == QAccessible::Grouping ||
            role == QAccessible::Border || role == QAccessible::Separator || role == QAccessible::MenuBar)
            continue;
        if (role == QAccessible::Client || accessibleLabel(widget).trimmed().isEmpty())
            unnamed << QStringLiteral("%1 (role %2)").arg(widget->objectName()).arg(static_cast<int>(role));
    }
    return unnamed;
}

} // namespace quillet
