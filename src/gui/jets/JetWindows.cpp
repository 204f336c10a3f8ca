#include "JetWindows.h"

#include "jets/Boeing.h"
#include "jets/BoeingLayout.h"
#include "shell/Application.h"
#include "shell/DeckWindow.h"

namespace quillet {

void registerJetWindows(Application& app)
{
    app.addWindow("Boeing", [](LoadForm& form, Application& application) -> LoadFormWindow* {
        auto& jet = static_cast<Boeing&>(form);
        using namespace boeing;
        return new DeckWindow(jet, application,
                              {.formName = "Boeing",
                               .layout = kDeck,
                               .decksDescription = "Decks: click a seat or hold to load or empty it",
                               .menus = {{kMnufile,
                                          {{kMnuload, [&jet] { jet.mnuload_Click(); }},
                                           {kMnusave, [&jet] { jet.mnusave_Click(); }}}},
                                         {kMnuauto,
                                          {{kMnuempty, [&jet] { jet.mnuempty_Click(); }},
                                           {kMnuline, {}},
                                           {kMnulight, [&jet] { jet.mnulight_Click(); }},
                                           {kMnumed, [&jet] { jet.mnumed_Click(); }},
                                           {kMnuheav, [&jet] { jet.mnuheav_Click(); }}}}}});
    });
}

} // namespace quillet
