#pragma once

#include "RegionalLoadForm.h"
#include "RegionalType.h"
#include "platform/Canvas.h"
#include "platform/Rgb.h"

#include <memory>
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

// The tooltip of an empty station's hot spot.
inline constexpr std::string_view kEmptyTooltip = "Empty";

// The seat-by-seat load form of a regional type (Beech 1900D, EMB-120, DHC-8-300): one design, the
// differences all in the type's data. The window places its controls where type().layout says and
// shows the state below; the handlers keep the names of the events they answer.
class RegionalForm final : public RegionalLoadForm {
public:
    RegionalForm(Session& session, const RegionalType& type);

    // One hot spot and one marker per station of the type, indexed like the stations.
    std::vector<HotSpot> location;
    std::vector<Marker> Shape1;

    // The cabin top view (named type().layout.cabinName), drawn when the form is made.
    Canvas& cabin() { return *m_cabin; }
    // Draws the cabin top view again from scratch.
    void drawCabin();

    void Form_Load() override;
    void location_Click(int index);
    void Form_LostFocus();
    std::vector<FocusStation> focusStations() const override;
    // A hot spot takes the left button only.
    void pressStation(const FocusStation& station, int Button) override;

    // Brings every hot spot and marker in line with the station weights.
    void redraw() override;
    Canvas* deckPicture() override { return &cabin(); }
    // The cabin with the markers of the loaded stations drawn on it.
    void drawDeck(Canvas& picture) override;

private:
    void showLoaded(int station);
    void showEmpty(int station);
    std::string occupiedText(int station) const;
    // Shows stations 0 to count - 1 as their weights say.
    void showStations(int count);
    // The presets show every station of the form, whatever count a station file gave.
    void showPresetLoad() override;

    std::unique_ptr<Canvas> m_cabin;
};

// The tooltip of a loaded station: its name, its weight rounded, " lb.".
std::string occupiedTooltip(std::string_view name, float weight);

} // namespace quillet
