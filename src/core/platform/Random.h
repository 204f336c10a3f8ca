#pragma once

#include <cstdint>
#include <deque>
#include <random>

namespace quillet {

// The program's one source of random numbers, uniform in [0, 1).
class RandomSource {
public:
    virtual ~RandomSource() = default;
    virtual double next() = 0;
};

// Seeded once with a fixed seed, so the same sequence of presets gives the same loads in every run.
// Draws have 24 bits, like the single-precision numbers they feed.
class SeededRandom final : public RandomSource {
public:
    static constexpr std::uint32_t kSeed = 5489;

    double next() override { return static_cast<double>(m_engine() >> 8) / 16777216.0; }

private:
    std::mt19937 m_engine{kSeed};
};

// Hands out the values it was given, for tests that steer every draw. When they run out it
// answers 0 and counts the extra draws.
class ScriptedRandom final : public RandomSource {
public:
    ScriptedRandom() = default;
    ScriptedRandom(std::initializer_list<double> values) : m_values(values) {}

    void push(double value) { m_values.push_back(value); }
    double next() override
    {
        ++m_draws;
        if (m_values.empty()) {
            ++m_overdrawn;
            return 0;
        }
        const double value = m_values.front();
        m_values.pop_front();
        return value;
    }
    int draws() const { return m_draws; }
    int overdrawn() const { return m_overdrawn; }
    std::size_t left() const { return m_values.size(); }

private:
    std::deque<double> m_values;
    int m_draws = 0;
    int m_overdrawn = 0;
};

} // namespace quillet
