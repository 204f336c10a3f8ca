#include "RegionalWindows.h"

#include "CRJ200Window.h"
#include "RegionalWindow.h"
#include "regional/CRJ200.h"
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
    app.addWindow(std::string(crj200Type().form),
                  [](LoadForm& form, Application& application) -> LoadFormWindow* {
                      return new CRJ200Window(static_cast<CRJ200&>(form), application);
                  });
}

} // namespace quillet
