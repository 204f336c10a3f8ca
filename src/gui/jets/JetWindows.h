#pragma once

namespace quillet {

class Application;

// Adds the window of the form "Boeing", the jet load form.
void registerJetWindows(Application& app);

} // namespace quillet
