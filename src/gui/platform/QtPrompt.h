#pragma once

#include "platform/Prompt.h"

namespace quillet {

// The input box and the question whether to save as modal Qt dialogs over the active window.
class QtPrompt final : public Prompt {
public:
    std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                        const std::string& defaultText) override;
    SaveChoice askToSave(const std::string& question, const std::string& title) override;
};

} // namespace quillet
