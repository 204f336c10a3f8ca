#pragma once

#include "LoadState.h"
#include "platform/Date.h"
#include "platform/Files.h"
#include "platform/Messages.h"
#include "platform/Prompt.h"
#include "platform/Random.h"
#include "platform/RecordingCanvas.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace quillet {

// What the forms share: the one load state, the services of the machine around them, and the few
// links back to the main window. Made once by the program (or by a test) and handed to every form.
class Session {
public:
    Session(Prompt& prompt, RandomSource& random, const Clock& clock, std::filesystem::path programFolder)
        : prompt(prompt), random(random), clock(clock), programFolder(std::move(programFolder))
    {
    }

    LoadState state;
    Messages messages;
    Files files;
    Prompt& prompt;
    RandomSource& random;
    const Clock& clock;
    // The folder that holds quillet.ini, the station files and the pictures.
    std::filesystem::path programFolder;

    // The type string of the main window's aircraft list.
    std::function<std::string()> currentType = [] { return std::string(); };
    // The main window's refresh, and showing it again when a load form closes.
    std::function<void()> refreshMain = [] {};
    std::function<void()> showMain = [] {};
    // Runs at the end of every read of a type's stored load.
    std::function<void()> afterRead = [] {};
    // Makes the picture boxes the forms draw on, of a size in twips: the window layer makes real
    // ones; by default they only record what is drawn.
    std::function<std::unique_ptr<Canvas>(double widthTwips, double heightTwips)> makeCanvas =
        [](double width, double height) { return std::make_unique<RecordingCanvas>(width, height); };

    // A picture file of the program's folder, found without regard to letter case; an empty path,
    // and a message the first time, when it is missing.
    std::filesystem::path picture(std::string_view name);
};

} // namespace quillet
