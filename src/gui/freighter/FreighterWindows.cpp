#include "FreighterWindows.h"

#include "freighter/DC10F.h"
#include "freighter/DC10FLayout.h"
#include "shell/Application.h"
#include "shell/DeckWindow.h"

namespace quillet {

void registerFreighterWindows(Application& app)
{
    app.addWindow("DC10F", [](LoadForm& form, Application& application) -> LoadFormWindow* {
        auto& freighter = static_cast<DC10F&>(form);
        using namespace dc10f;
        return new DeckWindow(
            freighter, application,
            {.formName = "DC10F",
             .layout = kDeck,
             .decksDescription = "Decks: click a container or crew seat to load or empty it",
             .menus = {{kMnufile,
                        {{kMnuload, [&freighter] { freighter.mnuload_Click(); }},
                         {kMnusave, [&freighter] { freighter.mnusave_Click(); }}}},
                       {kMnuauto,
                        {{kMnulight, [&freighter] { freighter.mnulight_Click(); }},
                         {kMnumed, [&freighter] { freighter.mnumed_Click(); }},
                         {kMnuheav, [&freighter] { freighter.mnuheav_Click(); }}}}}});
    });
}

} // namespace quillet
