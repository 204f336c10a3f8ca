#pragma once

#include "shell/FormRegistry.h"

namespace quillet {

// Adds the maker of the form "Boeing" for the jet types whose data this version has.
void registerJetForms(FormRegistry& forms);

} // namespace quillet
