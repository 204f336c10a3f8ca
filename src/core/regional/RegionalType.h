#pragma once

#include "shell/FormLayout.h"

#include <array>
#include <string_view>
#include <vector>

namespace quillet {

// The marker that shows a station is loaded: a filled green circle on a seat, a green cross-hatched
// rounded box on a hold or bay.
enum class MarkerKind { Circle, HatchedBox };

struct MarkerSpec {
    MarkerKind kind = MarkerKind::Circle;
    TwipsRect rect; // a circle's bounding box
};

// A circle of the given diameter whose bounding box has its top left corner at (left, top).
constexpr MarkerSpec circle(int diameter, int left, int top)
{
    return {MarkerKind::Circle, {left, top, diameter, diameter}};
}

constexpr MarkerSpec hatched(int left, int top, int width, int height)
{
    return {MarkerKind::HatchedBox, {left, top, width, height}};
}

// One load station: its name and position in feet, and where a seat-label form's cabin picture shows
// it. A form that draws its own seat map places its stations from their positions instead.
struct StationRow {
    std::string_view name;
    float x = 0;
    float y = 0;
    TwipsRect location; // the clickable hot spot
    MarkerSpec marker;
};

// A station of a form that draws its own seat map: no hot spot, no marker.
constexpr StationRow onSeatMap(std::string_view name, float x, float y)
{
    return {name, x, y, {}, {}};
}

// The limits and counts the type writes into the load state.
struct RegionalLimits {
    float emptyweight = 0;
    float maxtakeoff = 0;
    float maxlanding = 0;
    float maxzerofuel = 0;
    float maxfuel = 0;
    int maxpax = 0;
    int cfgstations = 0;
    int nstations = 0;
    int ncargo = 0;
    int nlower = 0;
    int ncrew = 0;
    int seats1 = 0;
    int seats2 = 0;
    int seats3 = 0;
};

// Which stations are what, by station number; -1 where a type has no such station.
struct StationRoles {
    std::array<int, 2> crew{};
    int firstPassenger = 0;
    int lastPassenger = 0;
    int avionics = -1;
    int hold = 0;
};

// Where the form places its controls, in twips inside its client area.
struct RegionalLayout {
    int clientWidth = 0;
    int clientHeight = 0;
    std::string_view cabinName; // the cabin top view's picture box
    TwipsRect cabin;
    std::string_view photoName; // the photograph's picture box
    TwipsRect photo;
    std::string_view photoFile;
    SummaryLayout summary;
};

// "File" holds reload and save, "Auto Load" the three presets.
struct RegionalMenus {
    MenuItem mnufile;
    MenuItem mnuload;
    MenuItem mnusave;
    MenuItem mnuauto;
    MenuItem mnulight;
    MenuItem mnumed;
    MenuItem mnuheav; // named "mnuhev" on one form
};

// A whole number drawn as base + Int(spread × draw / divisor), or base − Int(spread × draw / divisor).
struct CountDraw {
    int base = 0;
    int sign = 1;
    int spread = 0;
    int divisor = 1;
};

constexpr CountDraw plus(int base, int spread, int divisor = 1)
{
    return {base, 1, spread, divisor};
}

constexpr CountDraw minus(int base, int spread, int divisor = 1)
{
    return {base, -1, spread, divisor};
}

// A seat drawn as Int(count × draw + first): seats first to first + count − 1.
struct SeatDraw {
    int count = 0;
    int first = 0;

    int last() const { return first + count - 1; }
};

constexpr SeatDraw seats(int count, int first)
{
    return {count, first};
}

// The hold's baggage for n passengers: perPassenger × n + Int(n × spread × draw).
struct BaggageDraw {
    int perPassenger = 0;
    int spread = 0;
};

constexpr BaggageDraw bags(int perPassenger, int spread)
{
    return {perPassenger, spread};
}

// Light and medium presets place n passengers on seats drawn from a range.
struct PlacingPreset {
    CountDraw passengers;
    SeatDraw place;
    BaggageDraw baggage;
};

// How a heavy preset brings a full cabin down to n passengers: when n is at least fromCount, the
// reserved seats are emptied first, then further seats drawn from the range until n remain.
struct EmptyingRule {
    int fromCount = 0;
    std::vector<int> reserved;
    SeatDraw empty;
};

struct HeavyPreset {
    CountDraw passengers;
    std::vector<EmptyingRule> rules; // the first rule whose fromCount n reaches applies
    BaggageDraw baggage;
};

struct RegionalPresets {
    PlacingPreset light;
    PlacingPreset medium;
    HeavyPreset heavy;
    float avionicsLoad = 0; // put into the avionics bay by every preset of a type that has one
};

// Everything that makes a regional form what it is.
struct RegionalType {
    std::string_view type; // the type string of the main window's aircraft list
    std::string_view form; // the form's name in the registry
    std::string_view caption;
    RegionalLayout layout;
    RegionalMenus menus;
    RegionalLimits limits;
    std::vector<StationRow> stations;
    StationRoles roles;
    RegionalPresets presets;
    // The Beech form reads the stored load while it sets up, and refreshes the main window when
    // it loses the focus; the others leave both to the main window.
    bool readsStoredLoadAtSetUp = false;
    bool refreshesMainOnLostFocus = false;
};

// Station positions are cleared up to this station at set-up, so a type with fewer stations leaves
// no positions of another regional type behind them.
inline constexpr int kClearedPositionsThrough = 52;

const RegionalType& beechType();
const RegionalType& emb120Type();
const RegionalType& dhc8Type();
// The CRJ-200ER, whose form draws its own seat map: its stations have no hot spots or markers.
const RegionalType& crj200Type();

// The three types of the seat-label forms, in the order of the main window's list.
const std::array<const RegionalType*, 3>& regionalTypes();

} // namespace quillet
