#pragma once

#include "Rgb.h"

#include <functional>
#include <string>
#include <vector>

namespace quillet {

// The state of the controls a window shows, as plain values. The window layer copies it onto its
// widgets after every event; the forms' rules only ever touch these.

struct LabelState {
    std::string text;
    Rgb foreColor = kBlack;
    bool visible = true;
    std::string tooltip;
};

// A text box whose change event runs whenever its text changes, whether the user typed or the program
// assigned it; assigning the text it already holds is no change and runs nothing.
class TextBoxState {
public:
    explicit TextBoxState(std::string text = {}) : m_text(std::move(text)) {}

    const std::string& text() const { return m_text; }
    void setText(const std::string& text)
    {
        if (text == m_text)
            return;
        m_text = text;
        if (onChange)
            onChange();
    }

    std::function<void()> onChange;
    bool visible = true;
    std::string tooltip;

private:
    std::string m_text;
};

// A combo box: its list, the chosen item (-1 for none) and its text, which shows the chosen item or,
// with nothing chosen, whatever it was given. Its initial text stays as a hint for an empty choice.
class ComboState {
public:
    explicit ComboState(std::string text = {}) : hint(text), m_text(std::move(text)) {}

    const std::vector<std::string>& items() const { return m_items; }
    int listIndex() const { return m_index; }
    const std::string& text() const { return m_text; }

    void clear()
    {
        m_items.clear();
        m_index = -1;
        m_text.clear();
    }
    void addItem(std::string item) { m_items.push_back(std::move(item)); }
    void removeItem(int index)
    {
        if (index < 0 || index >= static_cast<int>(m_items.size()))
            return;
        m_items.erase(m_items.begin() + index);
        if (m_index == index)
            m_index = -1;
        else if (m_index > index)
            --m_index;
    }
    // Chooses an item (or none with -1) and shows it; choosing runs the click event.
    void setListIndex(int index)
    {
        if (index < -1 || index >= static_cast<int>(m_items.size()))
            return;
        m_index = index;
        m_text = index >= 0 ? m_items[static_cast<std::size_t>(index)] : std::string();
        if (index >= 0 && onClick)
            onClick();
    }
    void setText(std::string text) { m_text = std::move(text); }

    std::function<void()> onClick;
    std::string tooltip;
    std::string hint;

private:
    std::vector<std::string> m_items;
    int m_index = -1;
    std::string m_text;
};

} // namespace quillet
