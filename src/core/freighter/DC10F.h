#pragma once

#include "shell/DeckForm.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace quillet {

// The load form of the DC-10-30F freighter: 38 containers on two decks and five crew seats, loaded by
// clicking them on a top view of the decks, with container and zone limits and three presets. Unlike
// the jet types its containers come first (stations 0 to 37) and its crew last (38 to 42); nstations
// still counts the crew and ncargo the containers. The window places its controls at the twips of
// DC10FLayout.h and shows the state here after every event.
class DC10F final : public DeckForm {
public:
    static constexpr std::string_view kType = "DC-10-30F";
    explicit DC10F(Session& session);

    // The broken limit shown in red at the top of the deck picture; "" when none.
    std::string overloadNote;

    void Form_Load() override;
    void mnuload_Click() override;
    void mnusave_Click() override;
    void mnulight_Click() override;
    void mnumed_Click() override;
    void mnuheav_Click() override;
    void Picture1_MouseDown(int Button, int Shift, double X, double Y) override;
    void Picture1_MouseMove(int Button, int Shift, double X, double Y) override;
    std::vector<FocusStation> focusStations() const override;

    void redraw();
    Canvas* deckPicture() override { return &Picture1(); }
    void drawDeck(Canvas& picture) override;
    void nopass() override;
    void cargocheck();

    StationGroups stationGroups() const override;

protected:
    void afterLoadChange() override;

private:
    void setUpStations();
    // Whether a point of the picture lies in a station's hit square.
    bool hits(int station, double X, double Y) const;
    int markedStations() const;
    void preset(double base);
};

} // namespace quillet
