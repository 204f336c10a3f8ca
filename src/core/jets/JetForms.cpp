#include "JetForms.h"

#include "Boeing.h"

#include <string>
#include <vector>

namespace quillet {

void registerJetForms(FormRegistry& forms)
{
    std::vector<std::string> types;
    for (const JetType& jet : jetTypes())
        types.emplace_back(jet.type);
    forms.add(
        "Boeing", [](Session& session) { return std::make_unique<Boeing>(session); }, std::move(types));
}

} // namespace quillet
