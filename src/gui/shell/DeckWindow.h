#pragma once

#include "shell/FormLayout.h"
#include "shell/LoadFormWindow.h"
#include "shell/SummaryPanel.h"

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace quillet {

class Application;
class DeckForm;
class PictureBox;

// What a deck window is made of: where it places its controls, what its deck picture is named on the
// accessibility bus, and its menus. An item without a handler is a separator.
struct DeckWindowShape {
    struct Item {
        MenuItem item;
        std::function<void()> handler;
    };
    struct Menu {
        MenuItem menu;
        std::vector<Item> items;
    };

    std::string_view formName;
    const DeckLayout& layout;
    std::string_view decksDescription;
    std::vector<Menu> menus;
};

// The window of a deck form: the decks drawn by the form, which take the mouse, the aircraft's
// picture, the weight summary and the balance.
class DeckWindow : public LoadFormWindow {
    Q_OBJECT
public:
    DeckWindow(DeckForm& form, Application& app, const DeckWindowShape& shape);

    void sync() override;

private:
    DeckForm& m_deckForm;
    PictureBox* m_decks = nullptr;
    PictureBox* m_photo = nullptr;
    std::unique_ptr<SummaryPanel> m_summary;
};

} // namespace quillet
