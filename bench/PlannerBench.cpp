// Planning the largest cabin, the B767-300ER: 261 seats, 30 containers and the bulk hold.
#include "jets/Boeing.h"
#include "load/Planner.h"

#include <benchmark/benchmark.h>
#include <stdexcept>

namespace quillet {
namespace {

void planB767(benchmark::State& run, int passengers, float cargo)
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
    request.passengers = passengers < 0 ? planBounds(session.state, groups).seats : passengers;
    request.cargo = cargo;
    for (auto _ : run) {
        Result<Plan> plan = planLoad(session.state, groups, request);
        if (!plan)
            throw std::runtime_error(plan.error().message);
        benchmark::DoNotOptimize(plan);
    }
}
// Every seat (-1) and cargo for the containers; then half the cabin, where the seats are chosen.
BENCHMARK_CAPTURE(planB767, full, -1, 40000.0f)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(planB767, half, 130, 20000.0f)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace quillet
