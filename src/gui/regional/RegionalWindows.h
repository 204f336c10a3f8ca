#pragma once

namespace quillet {

class Application;

// Adds the windows of the forms "Beech", "Emb120", "DHC8" and "CRJ200".
void registerRegionalWindows(Application& app);

} // namespace quillet
