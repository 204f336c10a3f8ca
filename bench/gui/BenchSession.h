#pragma once

#include "load/Session.h"
#include "platform/Date.h"
#include "platform/Prompt.h"
#include "platform/QtCanvas.h"
#include "platform/Random.h"

#include <filesystem>
#include <memory>
#include <random>
#include <string>

namespace quillet {

// A session for one type over an empty temporary program folder, drawing on Qt canvases as the
// windows do. Without an aircraft folder the reader only reports, and the set-up's table stays.
class BenchSession {
public:
    // `pixelRatio`: the screen's device pixel ratio the canvases draw at.
    explicit BenchSession(std::string type, double pixelRatio = 1.0)
        : m_folder(std::filesystem::temp_directory_path() /
                   ("quillet-bench-" + std::to_string(std::random_device()()))),
          session(m_prompt, m_random, m_clock, m_folder), m_type(std::move(type))
    {
        std::filesystem::create_directories(m_folder);
        session.makeCanvas = [pixelRatio](double width, double height) {
            return std::make_unique<QtCanvas>(width, height, Rgb{255, 255, 255}, pixelRatio);
        };
        session.currentType = [this] { return m_type; };
    }
    ~BenchSession()
    {
        std::error_code ec;
        std::filesystem::remove_all(m_folder, ec);
    }
    BenchSession(const BenchSession&) = delete;
    BenchSession& operator=(const BenchSession&) = delete;

private:
    std::filesystem::path m_folder;
    ScriptedPrompt m_prompt;
    SeededRandom m_random;
    FixedClock m_clock{{2001, 3, 7}};

public:
    Session session;

private:
    std::string m_type;
};

} // namespace quillet
