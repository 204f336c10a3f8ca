#pragma once

#include "shell/LoadForm.h"

#include <filesystem>
#include <memory>
#include <string>

namespace quillet {

// The load form of the DC-10-30F freighter: 38 containers on two decks and five crew seats, loaded by
// clicking them on a top view of the decks, with container and zone limits and three presets. Unlike
// the jet types its containers come first (stations 0 to 37) and its crew last (38 to 42); nstations
// still counts the crew and ncargo the containers. The window places its controls at the twips of
// DC10FLayout.h and shows the state here after every event.
class DC10F final : public LoadForm {
public:
    static constexpr std::string_view kType = "DC-10-30F";
    // Mouse buttons as the events report them.
    static constexpr int kLeftButton = 1;

    explicit DC10F(Session& session);

    // The drawing scale of the decks, twips per foot.
    int deckscale = 0;
    // The window's caption, set when the form opens for the DC-10-30F.
    std::string caption;
    // The aircraft's picture (Picture2); empty when the file is missing.
    std::filesystem::path photo;
    SummaryLabels labels;
    // The broken limit shown in red at the top of the deck picture; "" when none.
    std::string overloadNote;

    Canvas& Picture1() { return *m_picture1; }
    SummaryLabels& summaryLabels() override { return labels; }
    Canvas& Picture4() override { return *m_picture4; }
    Canvas& Picture3() override { return *m_picture3; }

    void Form_Load() override;
    void mnuload_Click() override;
    void mnusave_Click();
    void mnulight_Click();
    void mnumed_Click();
    void mnuheav_Click();
    void Picture1_MouseDown(int Button, int Shift, double X, double Y);
    void Picture1_MouseMove(int Button, int Shift, double X, double Y);

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

    std::unique_ptr<Canvas> m_picture1;
    std::unique_ptr<Canvas> m_picture4;
    std::unique_ptr<Canvas> m_picture3;
};

} // namespace quillet
