#include "regional/CabinDrawing.h"

#include "RegionalRig.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>
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

TEST(RegionalCabin, EverySeatIsDrawnUnderItsHotSpot)
{
    for (const RegionalType* type : regionalTypes()) {
        const auto picture = drawn(*type);
        const auto boxes = picture->ops(DrawOp::Kind::Box);
        for (const StationRow& row : type->stations) {
            if (row.marker.kind != MarkerKind::Circle)
                continue;
            SCOPED_TRACE(std::string(type->form) + " " + std::string(row.name));
            const TwipsRect& spot = row.location;
            const bool outlined = std::any_of(boxes.begin(), boxes.end(), [&](const DrawOp& box) {
                return box.colour == kBlack && inside(box, spot) &&
                       covers(box, spot.centreX(), spot.centreY());
            });
            EXPECT_TRUE(outlined);
        }
    }
}

// A hold's marker hatches exactly the compartment drawn for it, and a click on the middle of that
// compartment reaches the hold's hot spot.
TEST(RegionalCabin, EveryHoldIsDrawnOnItsMarker)
{
    for (const RegionalType* type : regionalTypes()) {
        const auto picture = drawn(*type);
        const auto boxes = picture->ops(DrawOp::Kind::Box);
        const auto texts = picture->ops(DrawOp::Kind::Text);
        for (const StationRow& row : type->stations) {
            if (row.marker.kind != MarkerKind::HatchedBox)
                continue;
            SCOPED_TRACE(std::string(type->form) + " " + std::string(row.name));
            const TwipsRect& marker = row.marker.rect;
            // The marker covers these pixels, its far edges included.
            const PixelBox markerPixels{pixel(marker.left), pixel(marker.top), pixel(marker.right()) - 1,
                                        pixel(marker.bottom()) - 1};
            const auto hold = std::find_if(boxes.begin(), boxes.end(), [&](const DrawOp& box) {
                return box.colour == kBlack && pixelsOf(box) == markerPixels;
            });
            ASSERT_NE(hold, boxes.end());
            EXPECT_TRUE(covers(*hold, row.location.centreX(), row.location.centreY()));
            if (row.name == "Cargo") {
                const bool named = std::any_of(texts.begin(), texts.end(), [&](const DrawOp& text) {
                    return text.text == "Cargo" && text.x1 > hold->x1 && text.x1 < hold->x2;
                });
                EXPECT_TRUE(named);
            }
        }
    }
}

TEST(RegionalCabin, TheBeechHoldLiesWhereItsMarkerShowsIt)
{
    // The hold's marker is the box 7560, 150, 855, 1100 twips: pixels 504 to 560 across.
    const auto picture = drawn(beechType());
    const auto boxes = picture->ops(DrawOp::Kind::Box);
    const bool drawnThere = std::any_of(boxes.begin(), boxes.end(), [](const DrawOp& box) {
        return pixelsOf(box) == PixelBox{504, 10, 560, 82};
    });
    EXPECT_TRUE(drawnThere);
}

// Checks a cabin drawing: black outlines on white, off the outermost pixels (which the picture
// box's border covers). Returns how far left and right it reaches.
std::pair<double, double> expectBlackOutlinesOnWhite(const std::vector<DrawOp>& ops, const Canvas& picture)
{
    EXPECT_GE(ops.size(), 3u);
    if (ops.size() < 3)
        return {0, 0};
    EXPECT_EQ(ops[0].kind, DrawOp::Kind::Clear);
    EXPECT_EQ(ops[1].kind, DrawOp::Kind::Box);
    EXPECT_EQ(ops[1].fillStyle, FillStyle::Solid);
    EXPECT_EQ(ops[1].fillColor, kWhite);

    const double width = picture.scaleWidth();
    const double height = picture.scaleHeight();
    double leftmost = width;
    double rightmost = 0;
    for (std::size_t i = 2; i < ops.size(); ++i) {
        const DrawOp& op = ops[i];
        if (op.kind == DrawOp::Kind::Text)
            continue;
        EXPECT_EQ(op.colour, kBlack);
        EXPECT_NE(op.fillStyle, FillStyle::Solid) << "outlines only: whatever lies under them shows through";
        for (double x : {op.x1, op.x2}) {
            EXPECT_GE(x, kTwipsPerPixel);
            EXPECT_LT(x, width - kTwipsPerPixel);
        }
        for (double y : {op.y1, op.y2}) {
            EXPECT_GE(y, kTwipsPerPixel);
            EXPECT_LT(y, height - kTwipsPerPixel);
        }
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
