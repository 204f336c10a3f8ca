#include "RegionalWindows.h"

#include "RegionalWindow.h"
#include "regional/RegionalForm.h"
#include "shell/Application.h"

#include <string>

namespace quillet {

void registerRegionalWindows(Application& app)
{
    for (const RegionalType* type : regionalTypes()) {
        app.addWindow(std::string(type->form),
                      [](LoadForm& form, Application& application) -> LoadFormWindow* {
                          return new RegionalWindow(static_cast<RegionalForm&>(form), application);
                      });
    }
}

} // namespace quillet
