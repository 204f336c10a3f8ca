#include "regional/CabinDrawing.h"

#include "RegionalRig.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>
#include <tuple>
#include <utility>
#include <vector>

namespace quillet {
namespace {

std::unique_ptr<RecordingCanvas> drawn(const RegionalType& type)
{
    auto picture = std::make_unique<RecordingCanvas>(type.layout.cabin.width, type.layout.cabin.height);
    drawCabinView(*picture, type);
    return picture;
}

bool inside(const DrawOp& box, const TwipsRect& rect)
{
    return box.x1 >= rect.left && box.x2 <= rect.right() && box.y1 >= rect.top && box.y2 <= rect.bottom();
}

bool covers(const DrawOp& box, double x, double y)
{
    return box.x1 < x && x < box.x2 && box.y1 < y && y < box.y2;
}

// The device pixel a coordinate in twips falls on.
int pixel(double twips)
{
    return static_cast<int>(std::floor(twips / kTwipsPerPixel));
}

// Left, top, right and bottom pixel, all inclusive.
using PixelBox = std::array<int, 4>;

PixelBox pixelsOf(const DrawOp& box)
{
    return {pixel(std::min(box.x1, box.x2)), pixel(std::min(box.y1, box.y2)), pixel(std::max(box.x1, box.x2)),
            pixel(std::max(box.y1, box.y2))};
}

// Every seat is outlined under its hot spot; a hold's marker hatches exactly the compartment drawn for
// it, and a click on the middle of that compartment reaches the hold's hot spot.
TEST(RegionalCabin, EverySeatIsDrawnUnderItsHotSpotAndEveryHoldOnItsMarker)
{
    for (const RegionalType* type : regionalTypes()) {
        const auto picture = drawn(*type);
        const auto boxes = picture->ops(DrawOp::Kind::Box);
        const auto texts = picture->ops(DrawOp::Kind::Text);
        for (const StationRow& row : type->stations) {
            SCOPED_TRACE(std::string(type->form) + " " + std::string(row.name));
            const TwipsRect& spot = row.location;
            if (row.marker.kind == MarkerKind::Circle) {
                EXPECT_TRUE(std::any_of(boxes.begin(), boxes.end(), [&](const DrawOp& box) {
                    return box.colour == kBlack && inside(box, spot) &&
                           covers(box, spot.centreX(), spot.centreY());
                }));
                continue;
            }
            // The marker covers these pixels, its far edges included.
            const TwipsRect& marker = row.marker.rect;
            const PixelBox markerPixels{pixel(marker.left), pixel(marker.top), pixel(marker.right()) - 1,
                                        pixel(marker.bottom()) - 1};
            const auto hold = std::find_if(boxes.begin(), boxes.end(), [&](const DrawOp& box) {
                return box.colour == kBlack && pixelsOf(box) == markerPixels;
            });
            ASSERT_NE(hold, boxes.end());
            EXPECT_TRUE(covers(*hold, spot.centreX(), spot.centreY()));
            EXPECT_TRUE(row.name != "Cargo" ||
                        std::any_of(texts.begin(), texts.end(), [&](const DrawOp& text) {
                            return text.text == "Cargo" && text.x1 > hold->x1 && text.x1 < hold->x2;
                        }));
        }
    }
}

// Checks a cabin drawing: black outlines on white, off the outermost pixels (which the picture
// box's border covers). Returns how far left and right it reaches.
std::pair<double, double> expectBlackOutlinesOnWhite(const std::vector<DrawOp>& ops, const Canvas& picture)
{
    EXPECT_GE(ops.size(), 3u);
    if (ops.size() < 3)
        return {0, 0};
    EXPECT_EQ(ops[0].kind, DrawOp::Kind::Clear);
    EXPECT_EQ(std::tuple(ops[1].kind, ops[1].fillStyle, ops[1].fillColor),
              std::tuple(DrawOp::Kind::Box, FillStyle::Solid, kWhite));

    const double right = picture.scaleWidth() - kTwipsPerPixel;
    const double bottom = picture.scaleHeight() - kTwipsPerPixel;
    double leftmost = right;
    double rightmost = 0;
    for (std::size_t i = 2; i < ops.size(); ++i) {
        const DrawOp& op = ops[i];
        if (op.kind == DrawOp::Kind::Text)
            continue;
        EXPECT_EQ(op.colour, kBlack);
        EXPECT_NE(op.fillStyle, FillStyle::Solid) << "outlines only: whatever lies under them shows through";
        EXPECT_TRUE(std::min(op.x1, op.x2) >= kTwipsPerPixel && std::max(op.x1, op.x2) < right &&
                    std::min(op.y1, op.y2) >= kTwipsPerPixel && std::max(op.y1, op.y2) < bottom)
            << "operation " << i;
        leftmost = std::min({leftmost, op.x1, op.x2});
        rightmost = std::max({rightmost, op.x1, op.x2});
    }
    return {leftmost, rightmost};
}

TEST(RegionalCabin, BlackLinesOnWhiteInsideThePicture)
{
    for (const RegionalType* type : regionalTypes()) {
        SCOPED_TRACE(type->form);
        const auto picture = drawn(*type);
        const auto [leftmost, rightmost] = expectBlackOutlinesOnWhite(picture->ops(), *picture);
        // The fuselage reaches beyond every station: the nose to the left, the tail to the right.
        for (const StationRow& row : type->stations) {
            EXPECT_LT(leftmost, row.location.left);
            EXPECT_GT(rightmost, row.location.right());
        }
    }

    SCOPED_TRACE("CRJ200");
    RegionalRig rig;
    CRJ200 crj(rig.session);
    auto& seatMap = dynamic_cast<RecordingCanvas&>(crj.Picture2());
    const auto [leftmost, rightmost] = expectBlackOutlinesOnWhite(seatMap.backgroundOps(), seatMap);
    EXPECT_LT(leftmost, 1146 - 100) << "ahead of the pilots";
    EXPECT_GT(rightmost, 7444 + 200) << "behind the hold";
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

} // namespace
} // namespace quillet
