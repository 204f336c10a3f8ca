// What each form draws: every operation of the deck picture with every other station loaded, and of
// each regional cabin and the CRJ's seat map, written out line by line and compared with a file under
// tests/data checked against the type's published drawing (outline, cabin fittings, seats and
// containers, headings, hold labels; every regional seat and hold drawn under its station's hot spot).

#include "Golden.h"
#include "JetRig.h"
#include "TypeName.h"
#include "core/regional/RegionalRig.h"
#include "regional/CabinDrawing.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace quillet {
namespace {

// Twips to the hundredth, rounded in integers so that every platform writes the same digits.
std::string twips(double value)
{
    const long long hundredths = std::llround(value * 100);
    char text[32];
    std::snprintf(text, sizeof text, "%s%lld.%02lld", hundredths < 0 ? "-" : "", std::llabs(hundredths) / 100,
                  std::llabs(hundredths) % 100);
    return text;
}

std::string colour(Rgb c)
{
    char text[8];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", c.r, c.g, c.b);
    return text;
}

std::string describe(const std::vector<DrawOp>& ops)
{
    static const char* const fills[] = {"solid", "transparent", "cross"};
    std::ostringstream out;
    for (const DrawOp& op : ops) {
        const std::string fill =
            std::string(fills[static_cast<int>(op.fillStyle)]) + " " + colour(op.fillColor);
        switch (op.kind) {
        case DrawOp::Kind::Clear:
            out << "clear\n";
            break;
        case DrawOp::Kind::Line:
            out << "line " << twips(op.x1) << " " << twips(op.y1) << " " << twips(op.x2) << " "
                << twips(op.y2) << " " << colour(op.colour) << "\n";
            break;
        case DrawOp::Kind::Box:
            out << "box " << twips(op.x1) << " " << twips(op.y1) << " " << twips(op.x2) << " " << twips(op.y2)
                << " " << colour(op.colour) << " " << fill << "\n";
            break;
        case DrawOp::Kind::Circle:
            out << "circle " << twips(op.x1) << " " << twips(op.y1) << " r " << twips(op.radius) << " "
                << colour(op.colour) << " " << fill << "\n";
            break;
        case DrawOp::Kind::FloodFill:
            out << "flood fill pixel " << op.x1 << " " << op.y1 << " up to " << colour(op.colour) << " "
                << fill << "\n";
            break;
        case DrawOp::Kind::Text:
            out << "text " << twips(op.x1) << " " << twips(op.y1) << " \"" << op.text << "\" " << op.fontSize
                << (op.bold ? " bold " : " ") << colour(op.foreColor) << "\n";
            break;
        }
    }
    return out.str();
}

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
