#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace quillet {

// The modal input box: a prompt, a title and a proposed answer. Nothing when the user cancels.
class Prompt {
public:
    virtual ~Prompt() = default;
    virtual std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                                const std::string& defaultText) = 0;
};

// Answers input boxes from a list prepared by a test and remembers what was asked.
class ScriptedPrompt final : public Prompt {
public:
    struct Question {
        std::string prompt;
        std::string title;
        std::string defaultText;
    };

    void answer(std::string text) { m_answers.emplace_back(std::move(text)); }
    void cancel() { m_answers.emplace_back(std::nullopt); }

    std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                        const std::string& defaultText) override
    {
        m_asked.push_back({prompt, title, defaultText});
        if (m_answers.empty())
            return std::nullopt;
        auto reply = m_answers.front();
        m_answers.pop_front();
        return reply;
    }

    const std::vector<Question>& asked() const { return m_asked; }

private:
    std::deque<std::optional<std::string>> m_answers;
    std::vector<Question> m_asked;
};

} // namespace quillet
