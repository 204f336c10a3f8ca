#include "GuiFixture.h"

#include <QMouseEvent>

namespace quillet {
namespace {

class CRJ200WindowGui : public GuiFixture {
protected:
    void SetUp() override
    {
        window = open("CRJ-200ER",
                      "[fltsim.0]\r\ntitle=CRJ\r\n\r\n[WEIGHT_AND_BALANCE]\r\nempty_weight = 35000\r\n");
        ASSERT_NE(window, nullptr);
    }

    PictureBox* seatMap() const { return find<PictureBox>(window, "Picture2"); }
    QImage mapImage() const { return seatMap()->canvas()->image(); }
    // The pointer moving over the seat map with no button down, as the window system reports it.
    void movePointer(QPoint pos) const
    {
        QMouseEvent move(QEvent::MouseMove, pos, seatMap()->mapToGlobal(pos), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(seatMap(), &move);
    }

    QMainWindow* window = nullptr;
};

// Where the controls stand is the regional layout test's; here, what the window itself adds.
TEST_F(CRJ200WindowGui, PressesAndMovesReachTheSeatMap)
{
    EXPECT_EQ(seatMap()->accessibleName(), "Seat map");
    EXPECT_FALSE(find<PictureBox>(window, "Picture1")->picture().isNull());
    EXPECT_EQ(text("lblbow", window), "Basic Operating weight = 35000 lb.");

    // Seat 1A lies at (2721, 862) twips: pixel (181, 57).
    prompt.answer("170");
    QTest::mouseClick(seatMap(), Qt::LeftButton, {}, QPoint(181, 57));
    ASSERT_EQ(prompt.asked().size(), 1u);
    EXPECT_EQ(prompt.asked()[0].prompt, "Passenger 1A weight in lbs");
    EXPECT_EQ(text("lblpax", window), "PAX weight =  170 lb.");
    EXPECT_EQ(mapImage().pixel(181, 57) & 0xFFFFFF, 0x00FF00u);

    QTest::mouseClick(seatMap(), Qt::RightButton, {}, QPoint(181, 57));
    EXPECT_EQ(prompt.asked().size(), 1u) << "a right click only shows the weight";
    EXPECT_EQ(text("lblpax", window), "PAX weight =  170 lb.");

    movePointer(QPoint(300, 10));
    const QImage plain = mapImage();
    movePointer(QPoint(183, 55));
    const QImage withBox = mapImage();
    EXPECT_NE(withBox, plain);
    EXPECT_EQ(withBox.pixel(181, 57) & 0xFFFFFF, 0x00FF00u);
    movePointer(QPoint(300, 12));
    EXPECT_EQ(mapImage(), plain) << "the box goes at the next movement";

    // The hold, at (7444, 505) twips.
    prompt.answer("1200");
    QTest::mouseClick(seatMap(), Qt::LeftButton, {}, QPoint(506, 34));
    ASSERT_EQ(prompt.asked().size(), 2u);
    EXPECT_EQ(prompt.asked()[1].title, "Cargo details");
    EXPECT_EQ(text("lblpax", window), "PAX weight =  1370 lb.");
}

} // namespace
} // namespace quillet
