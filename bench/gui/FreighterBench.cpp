// One pointer movement over the fully loaded DC-10-30F deck, as the window sees it: the whole redraw
// on the Qt canvas with every container hatched, the information box, the container and zone check,
// and the weight summary with both balance pictures.
#include "BenchSession.h"
#include "freighter/DC10F.h"

#include <benchmark/benchmark.h>

namespace quillet {
namespace {

void BM_PointerOverDC10_30F(benchmark::State& run)
{
    BenchSession bench("DC-10-30F");
    Session& session = bench.session;
    DC10F form(session);
    form.Form_Load();
    LoadState& state = session.state;
    for (int i = 0; i < state.stationsInUse(); ++i)
        state.stationweight[i] = i < state.ncargo ? state.stationmax[i] * 0.8f : 170.0f;
    state.loadweight = state.sumOfWeights();
    session.messages.take();

    // Over the last container, so that its information box is drawn too.
    const int last = state.ncargo - 1;
    for (auto _ : run) {
        form.Picture1_MouseMove(0, 0, state.stationpx[last], state.stationpy[last]);
        form.runSummary();
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_PointerOverDC10_30F)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace quillet
