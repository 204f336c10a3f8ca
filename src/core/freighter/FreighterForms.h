#pragma once

#include "shell/FormRegistry.h"

namespace quillet {

// Adds the maker of the form "DC10F", the DC-10-30F's own.
void registerFreighterForms(FormRegistry& forms);

} // namespace quillet
