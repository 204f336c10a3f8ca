// One pointer movement over a fully loaded jet deck, as the window sees it: the whole redraw on the
// Qt canvas with its flood fills, the cargo check, the hover label and the weight summary with both
// balance pictures.
#include "BenchSession.h"
#include "jets/Boeing.h"

#include <benchmark/benchmark.h>

namespace quillet {
namespace {

class LoadedDeck {
public:
    explicit LoadedDeck(const std::string& type, double pixelRatio = 1.0) : m_bench(type, pixelRatio)
    {
        Session& session = m_bench.session;
        form = std::make_unique<Boeing>(session);
        form->Form_Load();
        LoadState& state = session.state;
        for (int i = 0; i < state.stationsInUse(); ++i)
            state.stationweight[i] = i < state.nstations ? 170.0f : state.stationmax[i] * 0.8f;
        state.loadweight = state.sumOfWeights();
        session.messages.take();
    }

    // Over the last cargo station, so that a label is drawn too.
    void pointAtCargo()
    {
        const LoadState& state = m_bench.session.state;
        const int last = state.stationsInUse() - 1;
        form->Picture1_MouseMove(0, 0, state.stationpx[last], state.stationpy[last]);
        form->runSummary();
    }

    // A seat loaded or emptied, so that the next movement finds the deck changed.
    void toggleFirstSeat()
    {
        LoadState& state = m_bench.session.state;
        state.stationweight[0] = state.stationweight[0] > 0 ? 0.0f : 170.0f;
    }

private:
    BenchSession m_bench;

public:
    std::unique_ptr<Boeing> form;
};

void pointerMove(benchmark::State& run, const std::string& type, double pixelRatio = 1.0,
                 bool loadChanges = false)
{
    LoadedDeck deck(type, pixelRatio);
    for (auto _ : run) {
        if (loadChanges)
            deck.toggleFirstSeat();
        deck.pointAtCargo();
        benchmark::ClobberMemory();
    }
}

void BM_PointerOverB737_300(benchmark::State& run)
{
    pointerMove(run, "B737-300");
}
BENCHMARK(BM_PointerOverB737_300)->Unit(benchmark::kMicrosecond);

// The largest narrow-body cabin: 194 persons.
void BM_PointerOverB757_200(benchmark::State& run)
{
    pointerMove(run, "B757-200");
}
BENCHMARK(BM_PointerOverB757_200)->Unit(benchmark::kMicrosecond);

// The most stations: 269 persons, 30 containers and the bulk hold.
void BM_PointerOverB767_300ER(benchmark::State& run)
{
    pointerMove(run, "B767-300ER");
}
BENCHMARK(BM_PointerOverB767_300ER)->Unit(benchmark::kMicrosecond);

// The same on a screen at 200 %: four times the pixels to fill.
void BM_PointerOverB767_300ER_Ratio2(benchmark::State& run)
{
    pointerMove(run, "B767-300ER", 2.0);
}
BENCHMARK(BM_PointerOverB767_300ER_Ratio2)->Unit(benchmark::kMicrosecond);

// The same after every change of the load (a click), when the whole deck is drawn again.
void BM_PointerOverB767_300ER_Ratio2_LoadChanged(benchmark::State& run)
{
    pointerMove(run, "B767-300ER", 2.0, true);
}
BENCHMARK(BM_PointerOverB767_300ER_Ratio2_LoadChanged)->Unit(benchmark::kMicrosecond);

// Eighteen main-deck containers, and the cargo check runs inside the drawing too.
void BM_PointerOverDC8_71F(benchmark::State& run)
{
    pointerMove(run, "DC-8-71F");
}
BENCHMARK(BM_PointerOverDC8_71F)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace quillet
