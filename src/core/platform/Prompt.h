#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace quillet {

// What the user answers when a form with unsaved changes is closed.
enum class SaveChoice { Save, Discard, Cancel };

// The modal questions: the input box (a prompt, a title and a proposed answer; nothing when the user
// cancels), and whether to save unsaved changes.
class Prompt {
public:
    virtual ~Prompt() = default;
    virtual std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                                const std::string& defaultText) = 0;
    virtual SaveChoice askToSave(const std::string& question, const std::string& title) = 0;
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

    // Answers the next question whether to save; unprepared, it is answered "Discard".
    void answerSave(SaveChoice choice) { m_saveChoices.push_back(choice); }
    SaveChoice askToSave(const std::string& question, const std::string&) override
    {
        m_saveQuestions.push_back(question);
        if (m_saveChoices.empty())
            return SaveChoice::Discard;
        const SaveChoice choice = m_saveChoices.front();
        m_saveChoices.pop_front();
        return choice;
    }
    const std::vector<std::string>& saveQuestions() const { return m_saveQuestions; }

private:
    std::deque<std::optional<std::string>> m_answers;
    std::vector<Question> m_asked;
    std::deque<SaveChoice> m_saveChoices;
    std::vector<std::string> m_saveQuestions;
};

} // namespace quillet
