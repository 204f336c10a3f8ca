#pragma once

#include "platform/Prompt.h"

namespace quillet {

// The input box as a modal Qt dialog over the active window.
class QtPrompt final : public Prompt {
public:
    std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                        const std::string& defaultText) override;
};

} // namespace quillet
