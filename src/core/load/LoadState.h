#pragma once

#include "platform/TextLines.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>

namespace quillet {

// Fixed capacities of the load state. Data beyond them is never taken in.
inline constexpr int kStationCapacity = 501;
inline constexpr int kVerticalCapacity = 601;
inline constexpr int kMarkerCapacity = 401;
inline constexpr int kContainerBoxCapacity = 51;
inline constexpr int kCfgLineCapacity = 301;
inline constexpr int kMenuCapacity = 21;

// Where the aircraft.cfg buffer came from, so that a save never writes one aircraft's lines into
// another's file, nor lines that another program has since changed.
struct CfgSource {
    bool valid = false;
    std::string type;           // the type string it was read for
    std::filesystem::path file; // the aircraft.cfg it holds
    std::string bytes;          // that file's bytes as read (or as last written by us)
};

// The counts and limits of a type, as the first two lines of its station file hold them.
struct StationHeader {
    // Counts of the type: persons (crew and passenger seats) first, then cargo stations.
    int nstations = 0;
    int ncargo = 0;
    int nlower = 0;
    int ncrew = 0;
    int seats1 = 0;
    int seats2 = 0;
    int seats3 = 0;
    int cfgstations = 0;

    // Limits of the type.
    float emptyweight = 0;
    float maxtakeoff = 0;
    float maxlanding = 0;
    float maxzerofuel = 0;
    float maxfuel = 0;

    friend bool operator==(const StationHeader&, const StationHeader&) = default;
};

// The one load state of the program: the station table and limits of the aircraft type that is set
// up, the totals derived from its stations, the buffered aircraft.cfg and the active aircraft menu.
// Weights are pounds, positions feet; at start every number is 0 and every text empty.
struct LoadState : StationHeader {
    // Station table, indexed by station number from 0.
    std::array<std::string, kStationCapacity> stationname{};
    std::array<float, kStationCapacity> stationweight{};
    std::array<float, kStationCapacity> stationx{};
    std::array<float, kStationCapacity> stationy{};
    std::array<float, kVerticalCapacity> stationz{};
    std::array<float, kStationCapacity> stationmax{};
    std::array<std::string, kStationCapacity> stationmsg{};
    std::array<std::int16_t, kMarkerCapacity> stationpx{};
    std::array<std::int16_t, kMarkerCapacity> stationpy{};
    std::array<std::array<float, 4>, kContainerBoxCapacity> containerbox{};

    int maxpax = 0;

    // Derived totals.
    float loadweight = 0;
    float fuelallowance = 0;
    int npax = 0;
    std::int16_t ncontainers = 0;

    // The aircraft's aircraft.cfg as last read, and how many lines its weight section spans.
    TextLines cfglines;
    int cfgcount = 0;
    int sectionlines = 0;
    CfgSource cfgsource;

    // Active aircraft menu.
    std::string simfolder;
    int nmenu = 0;
    std::array<std::string, kMenuCapacity> menutype{};
    std::array<std::string, kMenuCapacity> menufolder{};
    std::array<bool, kMenuCapacity> menuvalid{};

    // Stations in use by the type that is set up.
    int stationsInUse() const { return nstations + ncargo; }
    // Sum of the weights of the stations in use.
    float sumOfWeights() const;
    // The folder name of the last menu entry for the type, or nothing.
    const std::string* folderOf(const std::string& type) const;
};

} // namespace quillet
