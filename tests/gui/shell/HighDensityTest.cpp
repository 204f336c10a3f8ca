// Run by CTest a second time with QT_SCALE_FACTOR=2 (test "gui_at_200_percent"); at 100 % it is skipped.
#include "GuiFixture.h"

#include <QScreen>
#include <QScrollArea>

namespace quillet {
namespace {

// The B737-300's form opened with "Adjust" on a screen at 200 %.
class HighDensity : public GuiFixture {
protected:
    void SetUp() override
    {
        if (qApp->devicePixelRatio() != 2.0)
            GTEST_SKIP() << "needs QT_SCALE_FACTOR=2";
        window = open("B737-300");
        ASSERT_NE(window, nullptr);
    }

    QMainWindow* window = nullptr;
};

TEST_F(HighDensity, TheDeckIsDrawnSharpAndClicksLandOnTheSameSeats)
{
    auto* decks = find<PictureBox>(window, "Picture1");
    const QImage image = decks->canvas()->image();
    EXPECT_EQ(image.size(), decks->size() * 2);

    // Down the column through seat 1A, the first black run (the cabin wall) is one image pixel thick.
    const int column = 2 * 203;
    int top = 0;
    while (top < image.height() && (image.pixel(column, top) & 0xFFFFFF) != 0)
        ++top;
    ASSERT_LT(top, image.height());
    EXPECT_NE(image.pixel(column, top + 1) & 0xFFFFFF, 0u) << "the wall at image row " << top;

    // Seat 1A is drawn at (3045, 854) twips, at picture pixel (203, 57) whatever the ratio.
    prompt.answer("170");
    QTest::mouseClick(decks, Qt::LeftButton, {}, QPoint(203, 57));
    ASSERT_EQ(prompt.asked().size(), 1u);
    EXPECT_EQ(prompt.asked()[0].prompt, "Passenger 1A weight in lbs");
    EXPECT_EQ(text("lblpass", window), "Passengers  1 / 128");
    EXPECT_TRUE(deck(window, 2 * 202, 2 * 56, 2 * 204, 2 * 58).count(kGreenPixel));
}

TEST_F(HighDensity, AFormLargerThanTheScreenScrollsWithItsTitleBarOnTheScreen)
{
    const QRect available = window->screen()->availableGeometry();
    ASSERT_LT(available.width(), 654) << "the offscreen screen is 400 x 300 at 200 %";
    EXPECT_NE(qobject_cast<QScrollArea*>(window->centralWidget()), nullptr);
    EXPECT_TRUE(available.contains(window->frameGeometry()));
    EXPECT_EQ(find<QWidget>(window, "Picture1")->size(), QSize(633, 140))
        << "the form itself is not squeezed";
}

} // namespace
} // namespace quillet
