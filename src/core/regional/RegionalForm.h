#pragma once

#include "RegionalType.h"
#include "platform/Canvas.h"
#include "platform/Rgb.h"
#include "shell/LoadForm.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillet {

// A station's hot spot: a transparent label without caption over the cabin picture. Its tooltip
// tells whether the station is loaded.
struct HotSpot {
    TwipsRect rect;
    std::string tooltip;
};

// A station's marker, shown while the station is loaded.
struct Marker {
    MarkerKind kind = MarkerKind::Circle;
    TwipsRect rect;
    bool visible = false;
    Rgb fillColor = kGreen;
    FillStyle fillStyle = FillStyle::Solid; // diagonal cross on a hatched box
};

// Fixed texts the three forms share.
inline constexpr std::string_view kEmptyTooltip = "Empty";
inline constexpr std::string_view kPaxDetailsTitle = "Pax Details";
inline constexpr std::string_view kDefaultWeight = "170";

// The seat-by-seat load form of a regional type (Beech 1900D, EMB-120, DHC-8-300): one design, the
// differences all in the type's data. The window places its controls where type().layout says and
// shows the state below; the handlers keep the names of the events they answer.
class RegionalForm final : public LoadForm {
public:
    RegionalForm(Session& session, const RegionalType& type);

    const RegionalType& type() const { return m_type; }

    // One hot spot and one marker per station of the type, indexed like the stations.
    std::vector<HotSpot> location;
    std::vector<Marker> Shape1;
    // The photograph's file; empty when it is missing, and the picture box stays blank.
    std::filesystem::path photo;
    SummaryLabels labels;

    // The cabin top view (named type().layout.cabinName), drawn when the form is made.
    Canvas& cabin() { return *m_cabin; }
    // Draws the cabin top view again from scratch.
    void drawCabin();

    SummaryLabels& summaryLabels() override { return labels; }
    Canvas& Picture4() override { return *m_picture4; }
    Canvas& Picture3() override { return *m_picture3; }

    void Form_Load() override;
    void location_Click(int index);
    void mnuload_Click() override;
    void mnusave_Click();
    void mnulight_Click();
    void mnumed_Click();
    void mnuheav_Click();
    void Form_LostFocus();

    // Brings every hot spot and marker in line with the station weights.
    void redraw();
    // Counts the loaded passenger seats into npax.
    void nopass() override;

private:
    int stationCount() const { return static_cast<int>(location.size()); }
    void showLoaded(int station);
    void showEmpty(int station);
    std::string occupiedText(int station) const;

    // The presets (RegionalPresets.cpp).
    void placingPreset(const PlacingPreset& preset);
    void heavyPreset(const HeavyPreset& preset);
    int drawCount(const CountDraw& draw);
    float drawPassengerWeight();
    int drawSeat(const SeatDraw& seats, bool wantLoaded);
    // Draws the number of passengers and clears the load (every passenger seat emptied) for the
    // preset to rebuild.
    int startPreset(const CountDraw& passengers);
    void loadHold(const BaggageDraw& baggage, int passengers);
    void finishPreset();

    const RegionalType& m_type;
    std::unique_ptr<Canvas> m_cabin;
    std::unique_ptr<Canvas> m_picture4;
    std::unique_ptr<Canvas> m_picture3;
};

// The tooltip of a loaded station: its name, its weight rounded, " lb.".
std::string occupiedTooltip(std::string_view name, float weight);

// The weight typed into the input box: the leading number of the answer, or 0 (no weight) when that
// is not a positive number a station's weight can hold. A cancelled box is an empty answer.
float weightAnswer(const std::optional<std::string>& answer);

} // namespace quillet
