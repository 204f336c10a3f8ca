#pragma once

#include "GuiFixture.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <array>
#include <cctype>
#include <cmath>
#include <deque>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>

// Readable rectangles in failure messages.
inline void PrintTo(const QRect& rect, std::ostream* out)
{
    *out << rect.x() << ", " << rect.y() << ", " << rect.width() << " x " << rect.height();
}

namespace quillet::layout {

// The designed place of a control in twips, inside its window's client area or its container.
struct Twips {
    int left = 0, top = 0, width = 0, height = 0;
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

struct MenuEntry {
    const char *name, *caption;
};

// A window or frame as designed, read from its layout file under tests/data, which was checked by
// hand against the design's tables.
struct Design {
    std::string caption;
    int clientWidth = 0, clientHeight = 0;
    std::string cabin;
    std::vector<Control> controls;
    std::optional<std::array<int, 4>> rule; // Line1, from (x1, y1) to (x2, y2)
    std::vector<MenuEntry> menus;
    std::vector<Control> stations; // hot spot `location(i)` and marker `Shape1(i)` of each station
    std::deque<std::string> text;  // what the entries above point into

    void setFont(const char* name, const Font& font)
    {
        for (Control& control : controls) {
            if (std::string_view(control.name) == name)
                control.font = font;
        }
    }
};

// A line is a name (for a cabin and a photograph, a role and a name), numbers and a quoted text.
inline Design readDesign(const std::string& file)
{
    Design design;
    std::ifstream in(std::filesystem::path(QUILLET_TEST_DATA) / file);
    EXPECT_TRUE(in) << file;
    const auto keep = [&](std::string text) { return design.text.emplace_back(std::move(text)).c_str(); };
    std::string line;
    while (std::getline(in, line)) {
        const auto quote = line.find('"');
        const bool quoted = quote != std::string::npos;
        const std::string caption = quoted ? line.substr(quote + 1, line.rfind('"') - quote - 1) : "";
        std::istringstream words(line.substr(0, quote));
        std::string kind, name;
        words >> kind;
        if (kind == "cabin" || kind == "photo")
            words >> name;
        std::string rest((std::istreambuf_iterator<char>(words)), {});
        for (char& c : rest)
            c = std::isdigit(static_cast<unsigned char>(c)) ? c : ' ';
        std::istringstream numbers(rest);
        const std::vector<int> n{std::istream_iterator<int>(numbers), {}};
        Twips t; // a circle is given by its diameter and its corner
        if (n.size() == 3)
            t = {n[1], n[2], n[0], n[0]};
        else if (n.size() == 4)
            t = {n[0], n[1], n[2], n[3]};

        if (kind == "caption") {
            design.caption = caption;
        } else if (kind == "client") {
            design.clientWidth = n.at(0);
            design.clientHeight = n.at(1);
        } else if (kind == "Line1") {
            design.rule = {n.at(0), n.at(1), n.at(2), n.at(3)};
        } else if (kind.starts_with("mnu") || kind.starts_with("mun")) {
            design.menus.push_back({keep(kind), keep(caption)});
        } else if (!name.empty()) {
            design.controls.push_back({keep(name), t});
            if (kind == "cabin")
                design.cabin = name;
        } else if (kind.starts_with("Shape1(") || kind.starts_with("location(")) {
            // A hot spot is a label without caption.
            design.stations.push_back(
                {keep(kind), t, kind.starts_with("location(") ? std::optional("") : std::nullopt});
        } else if (!kind.empty()) {
            design.controls.push_back({keep(kind), t, quoted ? std::optional(keep(caption)) : std::nullopt});
        }
    }
    return design;
}

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

// Menus and their items, with their captions (the & marks the access key).
inline void expectMenus(const QWidget* window, const std::vector<MenuEntry>& entries)
{
    for (const MenuEntry& entry : entries) {
        SCOPED_TRACE(entry.name);
        const QString name = QString::fromLatin1(entry.name);
        const auto* menu = window->findChild<QMenu*>(name);
        const auto* action = window->findChild<QAction*>(name);
        ASSERT_TRUE(menu || action) << "no menu or menu item of this name";
        EXPECT_EQ(menu ? menu->title() : action->text(), QString::fromLatin1(entry.caption));
    }
}

// A window's title, the size of its client area, and its controls, line and menus as designed.
inline void expectDesign(const QWidget* window, const QWidget* client, const Design& design,
                         const std::vector<std::string>& grows = {})
{
    EXPECT_EQ(shownTitle(window), QString::fromStdString(design.caption));
    EXPECT_EQ(client->size(), QSize(pixels(design.clientWidth), pixels(design.clientHeight)));
    expectControls(client, design.controls, grows);
    if (design.rule) { // a level line, one pixel high, both ends included
        const auto [x1, y1, x2, y2] = *design.rule;
        ASSERT_EQ(y1, y2);
        const int left = pixels(std::min(x1, x2));
        const QWidget* line = client->findChild<QWidget*>("Line1", Qt::FindDirectChildrenOnly);
        ASSERT_NE(line, nullptr);
        EXPECT_EQ(line->geometry(), QRect(left, pixels(y1), pixels(std::max(x1, x2)) - left + 1, 1));
    }
    expectMenus(window, design.menus);
}

} // namespace quillet::layout
