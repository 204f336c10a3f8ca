#pragma once

#include "shell/FormLayout.h"

#include <QString>
#include <functional>
#include <string_view>

class QAction;
class QLabel;
class QMenu;
class QWidget;

namespace quillet {

class SummaryForm;
struct SummaryLabels;

// The controls every load form window has, placed from a layout: the heading "Demonstrated
// configuration", the summary labels, the separator, and the two balance pictures with their
// captions.
class SummaryPanel {
public:
    SummaryPanel(QWidget* client, const SummaryLayout& layout, SummaryForm& form);

    // Shows the summary labels and the balance pictures' tool tips as the form holds them.
    void sync(const SummaryLabels& labels);

private:
    QLabel* label(QWidget* client, const char* name, const TwipsRect& rect);

    QWidget* m_picture4 = nullptr;
    QWidget* m_picture3 = nullptr;
    QLabel* m_lblbow = nullptr;
    QLabel* m_lblpax = nullptr;
    QLabel* m_lblmf = nullptr;
    QLabel* m_lbltot = nullptr;
    QLabel* m_warning = nullptr;
    QLabel* m_lblpass = nullptr;
    QLabel* m_lblmaxtow = nullptr;
    QLabel* m_lblmaxfuel = nullptr;
};

// A fixed text of the program as Qt text.
inline QString latin(std::string_view text)
{
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

// Places a widget at a twips rectangle of its parent.
void place(QWidget* widget, const TwipsRect& rect);

// Adds a menu item with its caption and control name; choosing it runs the handler.
QAction* addMenuItem(QMenu* menu, const MenuItem& item, std::function<void()> handler);

} // namespace quillet
