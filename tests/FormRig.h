#pragma once

#include "ProgramFolder.h"
#include "load/Session.h"
#include "platform/Date.h"
#include "platform/Prompt.h"
#include "platform/Random.h"

#include <algorithm>
#include <numeric>
#include <string>
#include <tuple>

namespace quillet {

// A program folder with a simulator folder, the aircraft menu and a session over them: what a load
// form's tests open the form on.
class FormRig {
public:
    explicit FormRig(RandomSource* generator = nullptr)
        : session(prompt, generator ? *generator : random, clock, dir.path())
    {
        session.state.simfolder = dir.sim();
        session.currentType = [this] { return currentType; };
        session.refreshMain = [this] { ++mainRefreshes; };
    }

    // A type in the aircraft menu, with its aircraft.cfg in the simulator and its picture here.
    void addAircraft(const std::string& type, const std::string& folder,
                     const std::string& cfg = "[fltsim.0]\r\ntitle=Test\r\n\r\n[WEIGHT_AND_BALANCE]\r\n"
                                              "max_number_of_stations = 0\r\n")
    {
        LoadState& state = session.state;
        state.menutype[state.nmenu] = type;
        state.menufolder[state.nmenu] = folder;
        ++state.nmenu;
        dir.makeAircraft(folder, "aircraft.cfg", cfg);
        dir.write(type + ".gif", "GIF89a");
    }

    // Every station's weight, those beyond the type's stations included.
    float sumOfWeights() const
    {
        const auto& weights = session.state.stationweight;
        return std::accumulate(weights.begin(), weights.end(), 0.0f);
    }

    // The i-th question asked: its prompt, its title and the answer it offered.
    auto question(std::size_t i) const
    {
        const auto& q = prompt.asked().at(i);
        return std::tuple(q.prompt, q.title, q.defaultText);
    }

    // How many of the stations first to last carry a load.
    int loadedStations(int first, int last) const
    {
        const auto& w = session.state.stationweight;
        return static_cast<int>(std::count_if(&w[first], &w[last] + 1, [](float x) { return x > 0; }));
    }

    ProgramFolder dir;
    ScriptedPrompt prompt;
    ScriptedRandom random;
    FixedClock clock{{2001, 3, 7}};
    Session session;
    std::string currentType;
    int mainRefreshes = 0;
};

// A preset steered by its first draw alone: the rest come from the program's own generator.
class FirstDrawThenSeeded final : public RandomSource {
public:
    explicit FirstDrawThenSeeded(double first) : m_first(first) {}
    double next() override { return m_used++ == 0 ? m_first : m_seeded.next(); }

private:
    double m_first;
    int m_used = 0;
    SeededRandom m_seeded;
};

} // namespace quillet
