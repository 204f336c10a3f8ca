#pragma once

#include "shell/FormRegistry.h"

namespace quillet {

// Adds the makers of the forms "Beech", "Emb120" and "DHC8".
void registerRegionalForms(FormRegistry& forms);

} // namespace quillet
