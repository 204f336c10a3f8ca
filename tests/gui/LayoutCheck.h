#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QWidget>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

// Readable rectangles in failure messages.
inline void PrintTo(const QRect& rect, std::ostream* out)
{
    *out << rect.x() << ", " << rect.y() << ", " << rect.width() << " x " << rect.height();
}

namespace quillet::layout {

// The designed place of a control in twips, inside its window's client area or its container.
struct Twips {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

struct Font {
    const char* family = nullptr;
    double points = 0;
    bool bold = false;
};

// One control as the design gives it. No caption: its text is the program's to fill. No font: the
// form's own font.
struct Control {
    const char* name;
    Twips place;
    std::optional<const char*> caption = std::nullopt;
    std::optional<Font> font = std::nullopt;
};

// A straight line from (x1, y1) to (x2, y2), in twips.
struct Line {
    const char* name;
    int x1, y1, x2, y2;
};

struct MenuEntry {
    const char* name;
    const char* caption;
};

// 15 twips to a pixel, to the nearest pixel.
inline int pixels(int twips)
{
    return static_cast<int>(std::lround(twips / 15.0));
}

inline QRect pixels(const Twips& t)
{
    return {pixels(t.left), pixels(t.top), pixels(t.width), pixels(t.height)};
}

// The text a user reads on a control.
inline QString captionOf(const QWidget* widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(widget))
        return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        return button->text();
    if (const auto* frame = qobject_cast<const QGroupBox*>(widget))
        return frame->title();
    if (const auto* edit = qobject_cast<const QLineEdit*>(widget))
        return edit->text();
    if (const auto* combo = qobject_cast<const QComboBox*>(widget))
        return combo->count() == 0 ? combo->placeholderText() : combo->currentText();
    return {};
}

// Checks every control of the table inside `container`, found by its name among the container's
// own children. `grows` names controls that may be larger than designed so that they show whole.
inline void expectControls(const QWidget* container, const std::vector<Control>& controls,
                           const std::vector<std::string>& grows = {})
{
    const QFont formFont = QApplication::font();
    for (const Control& control : controls) {
        SCOPED_TRACE(control.name);
        const auto* widget =
            container->findChild<QWidget*>(QString::fromLatin1(control.name), Qt::FindDirectChildrenOnly);
        ASSERT_NE(widget, nullptr);
        const QRect designed = pixels(control.place);
        if (std::find(grows.begin(), grows.end(), control.name) != grows.end()) {
            EXPECT_EQ(widget->pos(), designed.topLeft());
            EXPECT_GE(widget->width(), designed.width());
            EXPECT_GE(widget->height(), designed.height());
        } else {
            EXPECT_EQ(widget->geometry(), designed);
        }
        if (control.caption) {
            EXPECT_EQ(captionOf(widget), QString::fromLatin1(*control.caption));
        }
        const QFont font = widget->font();
        const Font expected = control.font.value_or(Font{nullptr, formFont.pointSizeF(), formFont.bold()});
        EXPECT_EQ(font.family(), expected.family ? QString::fromLatin1(expected.family) : formFont.family());
        EXPECT_DOUBLE_EQ(font.pointSizeF(), expected.points);
        EXPECT_EQ(font.bold(), expected.bold);
    }
}

// A line is one pixel high, from its left end to its right end inclusive.
inline void expectLine(const QWidget* container, const Line& line)
{
    SCOPED_TRACE(line.name);
    const auto* widget =
        container->findChild<QWidget*>(QString::fromLatin1(line.name), Qt::FindDirectChildrenOnly);
    ASSERT_NE(widget, nullptr);
    ASSERT_EQ(line.y1, line.y2) << "only level lines are drawn";
    const int left = pixels(std::min(line.x1, line.x2));
    const int right = pixels(std::max(line.x1, line.x2));
    EXPECT_EQ(widget->geometry(), QRect(left, pixels(line.y1), right - left + 1, 1));
}

// Menus and their items, with their captions (the & marks the access key).
inline void expectMenus(const QWidget* window, const std::vector<MenuEntry>& entries)
{
    for (const MenuEntry& entry : entries) {
        SCOPED_TRACE(entry.name);
        const QString name = QString::fromLatin1(entry.name);
        if (const auto* menu = window->findChild<QMenu*>(name))
            EXPECT_EQ(menu->title(), QString::fromLatin1(entry.caption));
        else if (const auto* action = window->findChild<QAction*>(name))
            EXPECT_EQ(action->text(), QString::fromLatin1(entry.caption));
        else
            ADD_FAILURE() << "no menu or menu item of this name";
    }
}

} // namespace quillet::layout
