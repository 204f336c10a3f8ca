#pragma once

#include <set>
#include <string>
#include <vector>

namespace quillet {

// Messages for the user, gathered while an event runs and shown by the window layer when it ends.
// The same text is kept once while it waits, and `reportOnce` texts only once per run, so a problem
// met by several steps of one event is told once.
class Messages {
public:
    void report(const std::string& text)
    {
        for (const auto& waiting : m_pending) {
            if (waiting == text)
                return;
        }
        m_pending.push_back(text);
    }

    void reportOnce(const std::string& text)
    {
        if (m_toldOnce.insert(text).second)
            report(text);
    }

    // The waiting messages, oldest first; they are no longer waiting afterwards.
    std::vector<std::string> take()
    {
        std::vector<std::string> out;
        out.swap(m_pending);
        return out;
    }

    const std::vector<std::string>& pending() const { return m_pending; }

private:
    std::vector<std::string> m_pending;
    std::set<std::string> m_toldOnce;
};

} // namespace quillet
