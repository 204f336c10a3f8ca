// One read and one save of a full-size aircraft: a 300-line aircraft.cfg and a 300-station type.
#include "cfgfile/inputoutput.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>

namespace fs = std::filesystem;

namespace quillet {
namespace {

class Aircraft {
public:
    Aircraft()
    {
        m_folder = fs::temp_directory_path() / ("quillet-bench-" + std::to_string(std::random_device()()));
        fs::create_directories(m_folder / "program");
        fs::create_directories(m_folder / "fs2000/aircraft/b767");

        std::string cfg;
        for (int i = 0; i < 120; ++i)
            cfg += "// line " + std::to_string(i) + " of the flight model\t \r\n";
        cfg += "[WEIGHT_AND_BALANCE]\r\n";
        for (int i = 0; i < 40; ++i)
            cfg += "station_load." + std::to_string(i) + " = 170, 12.0, 0.0, 0.0 // Seat\r\n";
        for (int i = 0; i < 139; ++i)
            cfg += i % 20 == 0 ? "[section." + std::to_string(i) + "]\r\n"
                               : "key_" + std::to_string(i) + " = 1.0\r\n";
        std::ofstream(m_folder / "fs2000/aircraft/b767/aircraft.cfg", std::ios::binary) << cfg;

        LoadState& s = session.state;
        s.simfolder = (m_folder / "fs2000").string();
        s.nmenu = 1;
        s.menutype[0] = "B767-300ER";
        s.menufolder[0] = "b767";
        s.nstations = 290;
        s.ncargo = 10;
        s.seats1 = 24;
        s.seats3 = 256;
        s.emptyweight = 198440;
        s.maxtakeoff = 412000;
        s.maxlanding = 320000;
        s.maxfuel = 160000;
        for (int i = 0; i < 300; ++i) {
            s.stationname[i] = "Passenger " + std::to_string(i / 8) + static_cast<char>('A' + i % 8);
            s.stationx[i] = 80.0f - 0.5f * static_cast<float>(i);
            s.stationy[i] = static_cast<float>(i % 8) - 3.5f;
        }
        session.currentType = [] { return std::string("B767-300ER"); };
        session.programFolder = m_folder / "program";
        // The first read creates the station file and the backup; the measured ones find them.
        if (!readcfg(session))
            throw std::runtime_error("the benchmark aircraft could not be read");
        for (int i = 0; i < 300; i += 3)
            session.state.stationweight[i] = 185.5f;
        session.state.loadweight = session.state.sumOfWeights();
    }
    ~Aircraft()
    {
        std::error_code ec;
        fs::remove_all(m_folder, ec);
    }

    ScriptedPrompt prompt;
    ScriptedRandom random;
    FixedClock clock{Date{2001, 3, 7}};
    Session session{prompt, random, clock, {}};

private:
    fs::path m_folder;
};

void ReadAircraft(benchmark::State& state)
{
    Aircraft aircraft;
    for (auto _ : state)
        benchmark::DoNotOptimize(readcfg(aircraft.session).ok());
}
BENCHMARK(ReadAircraft)->Unit(benchmark::kMicrosecond);

void SaveAircraft(benchmark::State& state)
{
    Aircraft aircraft;
    for (auto _ : state)
        benchmark::DoNotOptimize(writecfg(aircraft.session).ok());
}
BENCHMARK(SaveAircraft)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace quillet
