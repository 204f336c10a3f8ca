#include "JetChecks.h"
#include "JetRig.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(JetB727_212ADV, DrawsItsFuselageWithTheFittingsAndItsCabin)
{
    DeckDrawing deck("B727-212ADV");
    expectFuselage(deck, {105, 210, 105, 1120, 4655, 7945, false}, {60.075, -48.735, 5.8});
    expectCabin(deck, 147, 12, 1.8, 1.5, 6);
    // The aft pressure bulkhead (-46, 5.6) to (-46, -5.6) is drawn with the fuselage, not the seats.
    const auto lines = deck.mainDeck.ops(DrawOp::Kind::Line);
    EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [](const DrawOp& op) {
        return std::fabs(op.x1 - 122.5 * 70) < 1e-6 && std::fabs(op.y1 - 2.4 * 70) < 1e-6 &&
               std::fabs(op.y2 - 13.6 * 70) < 1e-6;
    }));
    EXPECT_TRUE(deck.seats.ops(DrawOp::Kind::Line).empty());
}

} // namespace
} // namespace quillet
