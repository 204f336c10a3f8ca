#include "GuiFixture.h"

#include <QTest>

namespace quillet {
namespace {

constexpr QRgb kGreenPixel = 0x00FF00;
constexpr QRgb kRedPixel = 0xFF0000;

using FreighterWindowGui = GuiFixture;

TEST_F(FreighterWindowGui, OpensWithItsControlsAndLoadsAContainerWithTheMouseAndTheHeavyPreset)
{
    startWith({"DC-10-30F"});
    QMainWindow* window = adjust();
    ASSERT_NE(window, nullptr);
    const auto deck = [&](int left, int top, int right, int bottom) {
        return colours(window, "Picture1", left, top, right, bottom);
    };
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(shownTitle(window), "DC-10-30F");
    EXPECT_EQ(window->centralWidget()->size(), QSize(637, 295));
    QWidget* decks = find<QWidget>(window, "Picture1");
    EXPECT_EQ(decks->geometry(), QRect(0, 0, 633, 140));
    EXPECT_EQ(find<QWidget>(window, "Picture2")->geometry(), QRect(296, 176, 154, 109));
    EXPECT_FALSE(find<PictureBox>(window, "Picture2")->picture().isNull());
    EXPECT_EQ(find<QWidget>(window, "lblbow")->geometry().topLeft(), QPoint(24, 184));
    EXPECT_EQ(find<QWidget>(window, "lblpass")->geometry().topLeft(), QPoint(472, 144));
    EXPECT_EQ(text("lblpass", window), "Containers  0 / 38");
    EXPECT_EQ(menuTexts(window),
              "&File|&Re-load Configuration|&Save Configuration|-|&Undo|&Redo|-|Load &Sheet...|"
              "&Auto Load|&Light Load|&Medium Load|&Heavy Load|-|Load to &Target...");

    // Container 1L is hit at (2329, 468) twips, pixel (155, 31); its box spans pixels 141 to 177
    // across and 17 to 45 down.
    prompt.answer("3500");
    QTest::mouseClick(decks, Qt::LeftButton, {}, QPoint(155, 31));
    ASSERT_EQ(prompt.asked().size(), 1u);
    EXPECT_EQ(prompt.asked()[0].prompt, "Container 1L weight in lbs");
    EXPECT_EQ(prompt.asked()[0].defaultText, "3500");
    EXPECT_EQ(text("lblpass", window), "Containers  1 / 38");
    EXPECT_EQ(text("lblpax", window), "PAX weight =  3500 lb.");
    const auto box = deck(143, 19, 175, 43);
    EXPECT_TRUE(box.count(kGreenPixel));
    EXPECT_FALSE(box.count(kRedPixel));
    EXPECT_FALSE(deck(143, 49, 175, 57).count(kGreenPixel));

    find<QAction>(window, "mnuheav")->trigger();
    EXPECT_EQ(text("lblpass", window), "Containers  38 / 38");
    EXPECT_FALSE(deck(0, 0, 632, 139).count(kRedPixel));
    EXPECT_FALSE(find<QLabel>(window, "warning")->isVisible());

    window->close();
    QApplication::processEvents();
    EXPECT_TRUE(main()->isVisible());
    // The main window shows the last saved load, and nothing was saved.
    EXPECT_EQ(text("lblpax"), "PAX weight =  0 lb.");
}

} // namespace
} // namespace quillet
