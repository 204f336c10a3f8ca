#pragma once

#include "JetType.h"
#include "shell/DeckForm.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillet {

// The load form of the nine jet types: the decks drawn from the type's module, seats and holds loaded
// with the mouse, cargo overload checks, "Empty Aircraft" and three presets. The window places its
// controls at the twips below and shows the state here after every event.
class Boeing final : public DeckForm {
public:
    // A hover label that would end past this opens to the left of its station.
    static constexpr double kLabelRightLimit = 9435;
    explicit Boeing(Session& session);

    // The type set up by the last Form_Load, or nullptr.
    const JetType* jetType() const { return m_type; }

    void Form_Load() override;
    void mnuload_Click() override;
    void mnusave_Click() override;
    void mnuempty_Click();
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
    struct PresetFactors {
        double a;
        double b;
    };
    enum class Seating { Light, Medium, Heavy };

    std::string type() const { return m_session.currentType(); }
    int personCount() const;
    int cargoEnd() const;
    bool isLowerCargo(int station) const;
    void placeStations();
    void fillPass(Canvas& picture);
    void preset(Seating seating, PresetFactors factors);
    int drawSeat(int seats, bool wantOccupied);

    const JetType* m_type = nullptr;
};

} // namespace quillet
