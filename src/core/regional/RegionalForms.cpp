#include "RegionalForms.h"

#include "CRJ200.h"
#include "RegionalForm.h"

#include <string>

namespace quillet {

void registerRegionalForms(FormRegistry& forms)
{
    for (const RegionalType* type : regionalTypes()) {
        forms.add(std::string(type->form),
                  [type](Session& session) { return std::make_unique<RegionalForm>(session, *type); });
    }
    forms.add(std::string(crj200Type().form),
              [](Session& session) { return std::make_unique<CRJ200>(session); });
}

} // namespace quillet
