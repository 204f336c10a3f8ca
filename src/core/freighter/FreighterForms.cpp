#include "FreighterForms.h"

#include "DC10F.h"

namespace quillet {

void registerFreighterForms(FormRegistry& forms)
{
    forms.add("DC10F", [](Session& session) { return std::make_unique<DC10F>(session); },
              {std::string(DC10F::kType)});
}

} // namespace quillet
