#pragma once

namespace quillet {

class Application;

// Adds the window of the form "DC10F", the DC-10-30F load form.
void registerFreighterWindows(Application& app);

} // namespace quillet
