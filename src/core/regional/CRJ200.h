#pragma once

#include "RegionalLoadForm.h"

#include <memory>
#include <vector>

namespace quillet {

inline constexpr std::string_view kCargoDetailsTitle = "Cargo details";
inline constexpr std::string_view kDefaultCargoWeight = "1000";

// The CRJ-200ER's load form. Its cabin is a seat map the program draws: every station has a point on
// the map, computed from its position; a loaded seat shows a green dot there and the loaded hold a
// hatched box, clicks are hit-tested against those points, and resting the pointer on a loaded
// station shows a small information box beside it. Around the map it is a regional form like the
// others. The map is redrawn from the load state at every pointer movement: it keeps no state.
class CRJ200 final : public RegionalLoadForm {
public:
    // Mouse buttons as the events report them.
    static constexpr int kLeftButton = 1;
    static constexpr int kRightButton = 2;

    explicit CRJ200(Session& session);

    // The seat map, with the drawing of the cabin as its background picture.
    Canvas& Picture2() { return *m_picture2; }

    void Form_Load() override;
    // X and Y in twips of the seat map; Shift is not used.
    void Picture2_MouseDown(int Button, int Shift, double X, double Y);
    void Picture2_MouseMove(int Button, int Shift, double X, double Y);
    std::vector<FocusStation> focusStations() const override;
    void pressStation(const FocusStation& station, int Button) override;

    // Clears the seat map and draws a dot on every loaded station, the hold included.
    void redraw() override;
    Canvas* deckPicture() override { return &Picture2(); }
    void drawDeck(Canvas& picture) override;

private:
    // Where every station lies on the seat map, from its position.
    void placeseats();
    // The last person station and whether the hold is among the stations in use: a station file may
    // hold fewer stations than the type.
    int lastPerson() const;
    bool holdInUse() const;
    bool underPoint(int station, double X, double Y) const;
    bool underHold(double X, double Y) const;

    // Marks every loaded station, the hold included.
    void markLoaded(Canvas& map);
    void drawSeatDot(int station) { drawSeatDot(*m_picture2, station); }
    void drawSeatDot(Canvas& map, int station);
    void eraseSeatDot(int station);
    void drawHoldBox();
    void drawInformationBox(int station);

    std::unique_ptr<Canvas> m_picture2;
};

} // namespace quillet
