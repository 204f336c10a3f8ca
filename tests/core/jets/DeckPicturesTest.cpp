// What each form draws: every operation of the deck picture with every other station loaded, and of
// each regional cabin and the CRJ's seat map, written out line by line and compared with a file under
// tests/data checked against the type's published drawing (outline, cabin fittings, seats and
// containers, headings, hold labels; every regional seat and hold drawn under its station's hot spot).

#include "DrawOpText.h"
#include "Golden.h"
#include "JetRig.h"
#include "TypeName.h"
#include "core/regional/RegionalRig.h"
#include "regional/CabinDrawing.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quillet {
namespace {

void loadEveryOtherStation(LoadState& state)
{
    for (int i = 0; i < state.stationsInUse(); i += 2)
        state.stationweight[i] = 100;
}

std::vector<std::string> jetTypeStrings()
{
    std::vector<std::string> types;
    for (const JetType& jet : jetTypes())
        types.emplace_back(jet.type);
    return types;
}

class JetDeckPicture : public ::testing::TestWithParam<std::string> {};

TEST_P(JetDeckPicture, IsTheTypesPublishedDrawing)
{
    JetRig rig;
    Boeing& form = rig.open(GetParam());
    loadEveryOtherStation(rig.session.state);
    rig.picture().forget();
    form.redraw();
    expectGoldenFile(GetParam() + ".deck", describe(rig.picture().ops()));
}

INSTANTIATE_TEST_SUITE_P(EveryType, JetDeckPicture, ::testing::ValuesIn(jetTypeStrings()),
                         [](const auto& info) { return testNameOf(info.param); });

TEST(DC10FDeckPicture, IsTheTypesPublishedDrawing)
{
    FreighterRig rig;
    DC10F& form = rig.open();
    loadEveryOtherStation(rig.session.state);
    rig.picture().forget();
    form.redraw();
    expectGoldenFile("DC-10-30F.deck", describe(rig.picture().ops()));
}

TEST(RegionalCabinPicture, IsTheTypesPublishedDrawing)
{
    for (const RegionalType* type : regionalTypes()) {
        RecordingCanvas picture(type->layout.cabin.width, type->layout.cabin.height);
        drawCabinView(picture, *type);
        expectGoldenFile(std::string(type->form) + ".cabin", describe(picture.ops()));
    }
    RegionalRig rig;
    CRJ200 crj(rig.session);
    expectGoldenFile("CRJ200.cabin",
                     describe(dynamic_cast<RecordingCanvas&>(crj.Picture2()).backgroundOps()));
}

} // namespace
} // namespace quillet
