// Planning the largest cabin: the B767-300ER with every seat taken and cargo for all 31 of its
// containers and its bulk hold.
#include "jets/Boeing.h"
#include "load/Planner.h"

#include <benchmark/benchmark.h>
#include <stdexcept>

namespace quillet {
namespace {

void planB767Full(benchmark::State& run)
{
    ScriptedPrompt prompt;
    ScriptedRandom random;
    FixedClock clock({2001, 3, 7});
    Session session(prompt, random, clock, ".");
    session.currentType = [] { return std::string("B767-300ER"); };
    Boeing form(session);
    int deckscale = 0;
    findJetType("B767-300ER")->setUp(session.state, deckscale);
    const StationGroups groups = form.stationGroups();

    PlanRequest request;
    request.passengers = planBounds(session.state, groups).seats;
    request.cargo = 40000;
    for (auto _ : run) {
        Result<Plan> plan = planLoad(session.state, groups, request);
        if (!plan)
            throw std::runtime_error(plan.error().message);
        benchmark::DoNotOptimize(plan);
    }
}
BENCHMARK(planB767Full)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace quillet
