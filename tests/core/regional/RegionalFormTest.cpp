#include "RegionalRig.h"
#include "regional/RegionalForms.h"
#include "shell/AircraftTypes.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <tuple>

namespace quillet {
namespace {

constexpr int kBeechPassenger1A = 3;
constexpr int kBeechHold = 22;

// The golden table of the first run checks every station; these are what the form makes of it.
TEST(RegionalSetUp, ClearsWhatAnotherTypeLeftShowsEveryStationEmptyAndCountsOnlyPassengers)
{
    struct Expected {
        const RegionalType& type;
        int stations;
        int maxpax;
        int firstPassenger;
        float x40; // station 40's position: a seat of the DHC-8-300, cleared by the others
    };
    const Expected all[] = {
        {beechType(), 23, 19, 3, 0}, {emb120Type(), 33, 30, 2, 0}, {dhc8Type(), 53, 50, 2, -9.5f}};
    for (const Expected& expected : all) {
        SCOPED_TRACE(expected.type.form);
        RegionalRig rig;
        LoadState& state = rig.session.state;
        state.stationx[40] = 99;
        state.loadweight = 500;
        rig.currentType = std::string(expected.type.type);
        RegionalForm form(rig.session, expected.type);
        form.Form_Load();

        EXPECT_EQ(state.nstations + state.ncargo, expected.stations);
        EXPECT_EQ(state.loadweight, 0);
        EXPECT_EQ(state.stationx[40], expected.x40);
        ASSERT_EQ(form.location.size(), static_cast<std::size_t>(expected.stations));
        for (int i = 0; i < expected.stations; ++i) {
            EXPECT_EQ(form.location[i].tooltip, "Empty");
            EXPECT_FALSE(form.Shape1[i].visible);
        }
        EXPECT_EQ(form.labels.lblpass.text, "Passengers  0 / " + std::to_string(expected.maxpax));

        const int first = expected.firstPassenger;
        for (int station = 0; station < expected.stations; ++station) {
            rig.prompt.answer("100");
            form.location_Click(station);
            ASSERT_EQ(state.npax, std::clamp(station, first - 1, first + expected.maxpax - 1) - first + 1)
                << "after station " << station;
            ASSERT_EQ(state.loadweight, rig.sumOfWeights());
        }
    }
}

// Each marker's kind and size are the layout files'; here, how they are filled.
TEST(RegionalSetUp, MarkersAreGreenDiscsOnSeatsAndHatchedBoxesOnHolds)
{
    RegionalRig rig;
    RegionalForm& beech = rig.open(beechType());
    for (int station : {0, kBeechHold})
        EXPECT_EQ(beech.Shape1[station].fillStyle, FillStyle::DiagonalCross);
    const Marker& seat = beech.Shape1[kBeechPassenger1A];
    EXPECT_EQ(std::tuple(seat.fillStyle, seat.fillColor), std::tuple(FillStyle::Solid, kGreen));
}

TEST(RegionalSetUp, OnlyTheBeechShowsItsStoredLoadWhileSettingUpAndRefreshesTheMainWindowOnLeaving)
{
    for (const RegionalType* type : regionalTypes()) {
        SCOPED_TRACE(type->form);
        RegionalRig rig;
        RegionalForm& form = rig.open(*type);
        rig.prompt.answer("170");
        form.location_Click(5);
        form.mnusave_Click();
        rig.session.state.stationweight.fill(0);

        form.Form_Load();
        EXPECT_EQ(form.location[5].tooltip == "Empty", !type->readsStoredLoadAtSetUp);
        form.mnuload_Click();
        EXPECT_EQ(form.location[5].tooltip, rig.session.state.stationname[5] + " 170 lb.");
        EXPECT_TRUE(form.Shape1[5].visible);
        form.Form_LostFocus();
        EXPECT_EQ(rig.mainRefreshes, type == &beechType() ? 1 : 0);
    }
}

TEST(RegionalSeatClick, AsksForAnEmptySeatsWeightAndEmptiesAnOccupiedSeatWithoutAsking)
{
    RegionalRig rig;
    RegionalForm& form = rig.open(beechType());
    rig.prompt.answer("170");
    form.location_Click(kBeechPassenger1A);
    ASSERT_EQ(rig.prompt.asked().size(), 1u);
    EXPECT_EQ(rig.question(0), std::tuple("Passenger 1A weight in lbs", "Pax Details", "170"));
    EXPECT_EQ(form.location[kBeechPassenger1A].tooltip, "Passenger 1A 170 lb.");
    EXPECT_TRUE(form.Shape1[kBeechPassenger1A].visible);
    EXPECT_EQ(rig.session.state.loadweight, 170);
    EXPECT_EQ(form.labels.lblpax.text, "PAX weight =  170 lb.");
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  1 / 19");

    form.location_Click(kBeechPassenger1A);
    EXPECT_EQ(rig.prompt.asked().size(), 1u);
    EXPECT_EQ(form.location[kBeechPassenger1A].tooltip, "Empty");
    EXPECT_FALSE(form.Shape1[kBeechPassenger1A].visible);
    EXPECT_EQ(rig.session.state.stationweight[kBeechPassenger1A], 0);
    EXPECT_EQ(rig.session.state.loadweight, 0);
    EXPECT_EQ(form.labels.lblpax.text, "PAX weight =  0 lb.");
    form.location_Click(kBeechPassenger1A); // empty again: asks again
    EXPECT_EQ(rig.prompt.asked().size(), 2u);
}

TEST(RegionalSeatClick, ReadsTheLeadingNumberWithItsDecimalsAndAnythingElseLeavesTheSeatEmpty)
{
    RegionalRig rig;
    RegionalForm& form = rig.open(dhc8Type());
    rig.prompt.answer("85 kg");
    form.location_Click(2);
    rig.prompt.answer("182.6");
    form.location_Click(3);
    EXPECT_EQ(std::tuple(rig.session.state.stationweight[2], rig.session.state.stationweight[3]),
              std::tuple(85.0f, 182.6f));
    EXPECT_EQ(form.location[3].tooltip, "Passenger 1B 183 lb.");
    EXPECT_EQ(rig.session.state.loadweight, 85 + 182.6f);

    for (const char* answer : {"0", "-80", "abc", "", "1e39", "1e-60", "cancel"}) {
        SCOPED_TRACE(answer);
        if (answer == std::string("cancel"))
            rig.prompt.cancel();
        else
            rig.prompt.answer(answer);
        form.location_Click(4);
        EXPECT_EQ(form.location[4].tooltip, "Empty");
        EXPECT_FALSE(form.Shape1[4].visible);
        EXPECT_EQ(rig.session.state.stationweight[4], 0);
        EXPECT_EQ(rig.session.state.loadweight, 85 + 182.6f);
    }
}

TEST(RegionalSeatClick, HoldAndAvionicsBayAreEditedLikeSeats)
{
    RegionalRig rig;
    RegionalForm& form = rig.open(beechType());
    rig.prompt.answer("400");
    form.location_Click(kBeechHold);
    rig.prompt.answer("60");
    form.location_Click(0);

    ASSERT_EQ(rig.prompt.asked().size(), 2u);
    EXPECT_EQ(rig.prompt.asked()[0].prompt, "Cargo weight in lbs");
    EXPECT_EQ(rig.prompt.asked()[1].prompt, "Avionics weight in lbs");
    EXPECT_EQ(rig.prompt.asked()[1].title, "Pax Details");
    EXPECT_EQ(form.location[kBeechHold].tooltip, "Cargo 400 lb.");
    EXPECT_EQ(form.location[0].tooltip, "Avionics 60 lb.");
    EXPECT_TRUE(form.Shape1[kBeechHold].visible);
    EXPECT_EQ(rig.session.state.loadweight, 460);

    form.location_Click(kBeechHold);
    EXPECT_EQ(rig.session.state.loadweight, 60);
    EXPECT_FALSE(form.Shape1[kBeechHold].visible);
}

TEST(RegionalForm, RedrawFollowsTheWeightsAndStationsBeyondTheFormAreLeftAlone)
{
    RegionalRig rig;
    RegionalForm& form = rig.open(emb120Type());
    EXPECT_EQ(form.photo, rig.dir.path() / "emb120.gif");
    rig.prompt.answer("170");
    form.location_Click(2);
    form.location_Click(-1);
    form.location_Click(33);
    EXPECT_EQ(rig.prompt.asked().size(), 1u);

    // A hand-edited station file may count more stations than the form shows.
    LoadState& state = rig.session.state;
    state.cfgstations = 400;
    state.stationweight[100] = 50;
    state.stationweight[2] = 0;
    state.stationweight[32] = 333.4f;
    form.redraw();
    EXPECT_EQ(form.location[2].tooltip, "Empty");
    EXPECT_FALSE(form.Shape1[2].visible);
    EXPECT_EQ(form.location[32].tooltip, "Cargo 333 lb.");
    EXPECT_TRUE(form.Shape1[32].visible);
}

TEST(RegionalCabin, TheFormDrawsItsCabinWhenMadeAndAgainOnDemand)
{
    RegionalRig rig;
    RegionalForm form(rig.session, emb120Type());
    auto& cabin = dynamic_cast<RecordingCanvas&>(form.cabin());
    EXPECT_NEAR(cabin.scaleWidth(), 9375, kTwipsPerPixel);
    EXPECT_NEAR(cabin.scaleHeight(), 1300, kTwipsPerPixel);
    const std::size_t count = cabin.ops().size();
    EXPECT_GT(count, 60u);

    form.drawCabin();
    ASSERT_EQ(cabin.ops().size(), 2 * count);
    EXPECT_EQ(cabin.ops()[count].kind, DrawOp::Kind::Clear);
}

// Opening, closing and the main window's lines are the shell's tests (MainWindowTest, with the same
// LoadForm closing); here, that the aircraft list sends each type to its form and photograph.
TEST(RegionalForm, TheAircraftListKnowsEachTypesFormAndPhotographAndTheCRJHasItsOwn)
{
    for (const RegionalType* type : regionalTypes()) {
        const AircraftType* known = findAircraftType(type->type);
        ASSERT_NE(known, nullptr);
        EXPECT_EQ(known->form, type->form);
        EXPECT_EQ(known->picture, type->layout.photoFile);
    }
    RegionalRig rig;
    FormRegistry registry;
    registerRegionalForms(registry);
    EXPECT_NE(dynamic_cast<CRJ200*>(registry.form("CRJ200", rig.session)), nullptr) << "its own seat map";
}

} // namespace
} // namespace quillet
