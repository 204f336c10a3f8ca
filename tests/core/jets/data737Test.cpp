#include "JetChecks.h"
#include "JetRig.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(JetB737_200ADV, DrawsItsShorterFuselageAndCabin)
{
    DeckDrawing deck("B737-200ADV");
    expectFuselage(deck, {560, 210, 560, 1120, 2800, 5320, true}, {43.435, -39.683, 5.9});
    expectCabin(deck, 102, 14, 1.8, 1.5, 6);
    // The B737-300's first window moved 4.14 ft aft begins at (36.81, 2.11), on both sides.
    const auto lines = deck.mainDeck.ops(DrawOp::Kind::Line);
    for (double y : {2.11, -2.11})
        EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [&](const DrawOp& op) {
            return std::fabs(op.x1 - (68 - 36.81) * 70) < 1e-6 && std::fabs(op.y1 - (8 - y) * 70) < 1e-6;
        })) << y;
}

} // namespace
} // namespace quillet
