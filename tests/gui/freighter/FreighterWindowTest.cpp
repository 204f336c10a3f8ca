#include "GuiFixture.h"
#include "freighter/DC10F.h"

#include <QTest>

namespace quillet {
namespace {

constexpr QRgb kGreenPixel = 0x00FF00;
constexpr QRgb kRedPixel = 0xFF0000;

// The DC-10-30F's form opened with "Adjust".
class FreighterWindowGui : public GuiFixture {
protected:
    void SetUp() override
    {
        startWith({"DC-10-30F"});
        window = adjust();
        ASSERT_NE(window, nullptr);
    }

    std::set<QRgb> deck(int left, int top, int right, int bottom) const
    {
        return colours(window, "Picture1", left, top, right, bottom);
    }

    QMainWindow* window = nullptr;
};

TEST_F(FreighterWindowGui, OpensWithItsControlsAndLoadsAContainerWithTheMouse)
{
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

    window->close();
    QApplication::processEvents();
    EXPECT_TRUE(main()->isVisible());
    // The main window shows the last saved load, and nothing was saved.
    EXPECT_EQ(text("lblpax"), "PAX weight =  0 lb.");
}

TEST_F(FreighterWindowGui, HeavyLoadFillsEveryContainerWithinItsLimits)
{
    find<QAction>(window, "mnuheav")->trigger();
    EXPECT_EQ(text("lblpass", window), "Containers  38 / 38");
    const auto all = deck(0, 0, 632, 139);
    EXPECT_TRUE(all.count(kGreenPixel));
    EXPECT_FALSE(all.count(kRedPixel));
    EXPECT_FALSE(find<QLabel>(window, "warning")->isVisible());
}

TEST_F(FreighterWindowGui, AnOverloadedZoneTurnsItsContainersRedAndIsNamedAtTheTop)
{
    // 1L to 3R, full: 53680 lb in zone 1, whose limit is 50000.
    const QPoint containers[] = {{155, 31}, {155, 59}, {191, 31}, {191, 59}, {227, 31}, {227, 59}};
    for (const char* weight : {"8800", "8800", "9020", "9020", "9020", "9020"})
        prompt.answer(weight);
    for (const QPoint& at : containers)
        QTest::mouseClick(find<QWidget>(window, "Picture1"), Qt::LeftButton, {}, at);
    EXPECT_EQ(static_cast<DC10F&>(*app->forms().existing("DC10F")).overloadNote, "Zone Overload");
    EXPECT_TRUE(deck(143, 19, 175, 43).count(kRedPixel));
    EXPECT_FALSE(deck(143, 19, 175, 43).count(kGreenPixel));
    // The note at (500, 50) twips, over "Main Deck".
    EXPECT_TRUE(deck(33, 3, 120, 15).count(kRedPixel));
}

} // namespace
} // namespace quillet
