#pragma once

#include "load/Session.h"
#include "platform/Files.h"
#include "shell/Form1.h"
#include "shell/FormRegistry.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <random>
#include <span>
#include <string>

namespace quillet {

// Where a user's next choice comes from: the bytes of a fuzz input, or a seeded generator.
class Choices {
public:
    virtual ~Choices() = default;
    virtual std::uint32_t next() = 0;
    // A number in [0, count).
    int pick(int count)
    {
        return count > 0 ? static_cast<int>(next() % static_cast<std::uint32_t>(count)) : 0;
    }
};

// Two bytes per choice; zeros once the bytes run out.
class ByteChoices final : public Choices {
public:
    explicit ByteChoices(std::span<const std::uint8_t> bytes = {}) : m_bytes(bytes) {}
    void reset(std::span<const std::uint8_t> bytes)
    {
        m_bytes = bytes;
        m_at = 0;
    }
    bool done() const { return m_at >= m_bytes.size(); }
    std::uint32_t next() override
    {
        std::uint32_t value = 0;
        for (int i = 0; i < 2; ++i)
            value = value << 8 | (m_at < m_bytes.size() ? m_bytes[m_at++] : 0u);
        return value;
    }

private:
    std::span<const std::uint8_t> m_bytes;
    std::size_t m_at = 0;
};

class SeededChoices final : public Choices {
public:
    explicit SeededChoices(std::uint32_t seed) : m_engine(seed) {}
    std::uint32_t next() override { return static_cast<std::uint32_t>(m_engine()); }

private:
    std::mt19937 m_engine;
};

// A user at the main window and the load forms of all fourteen types: a program folder holding
// quillet.ini, a simulator folder with an aircraft folder per type, and the core forms over them.
// Each step is one user action that the choices decide; `broken` says which promise the program has
// failed to keep so far.
class FormDriver {
public:
    // `folder` is made if need be; `files` may be held in memory.
    FormDriver(const std::filesystem::path& folder, Files files, Choices& choices);
    FormDriver(const FormDriver&) = delete;
    FormDriver& operator=(const FormDriver&) = delete;

    // One action: choosing a type, opening or closing its form, a click or pointer move at a station
    // or anywhere (answering the input box it opens), a preset, "Empty Aircraft", reload or save.
    void step();
    // Reads every type's files back; call at the end.
    void readEveryType();
    // Back to just after start-up, every form closed, for a run of its own; the files are the
    // caller's to put back.
    void restart();
    // The program closed: every form gone and the state as before start-up, so that nothing of a run
    // stays allocated.
    void stop();

    // The first broken promise, or empty.
    const std::string& broken() const { return m_broken; }
    int saves() const { return m_saves; }
    int refusedSaves() const { return m_refused; }

private:
    // Answers each input box with a text the choices pick, as a user types it.
    class AnsweringPrompt final : public Prompt {
    public:
        explicit AnsweringPrompt(Choices& choices) : m_choices(choices) {}
        std::optional<std::string> inputBox(const std::string&, const std::string&,
                                            const std::string&) override;
        // The driver closes no window, so nothing asks this; saving is an action of its own.
        SaveChoice askToSave(const std::string&, const std::string&) override { return SaveChoice::Discard; }

    private:
        Choices& m_choices;
    };

    Choices& m_choices;
    AnsweringPrompt m_prompt;
    SeededRandom m_random;
    FixedClock m_clock{Date{2001, 3, 7}};

public:
    Session session;

private:
    void fail(const std::string& what);
    void checkLoad(const std::string& action);
    void save(LoadForm& form);
    void click(LoadForm& form, bool move);

    void startUp();

    LoadState m_startState; // the state before start-up
    std::unique_ptr<FormRegistry> m_forms;
    std::unique_ptr<Form1> m_form1;
    std::string m_broken;
    float m_peak = 1; // the largest total the run has held
    int m_saves = 0;
    int m_refused = 0;
};

} // namespace quillet
