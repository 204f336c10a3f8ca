#pragma once

namespace quillet {

class Application;

// Adds the windows of the forms "Beech", "Emb120" and "DHC8".
void registerRegionalWindows(Application& app);

} // namespace quillet
