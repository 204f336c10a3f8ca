#pragma once

#include "shell/FormRegistry.h"

namespace quillet {

// Adds the makers of the forms "Beech", "Emb120", "DHC8" and "CRJ200".
void registerRegionalForms(FormRegistry& forms);

} // namespace quillet
