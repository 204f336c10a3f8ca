#include "GuiFixture.h"
#include "freighter/DC10F.h"
#include "platform/PictureBox.h"
#include "platform/QtCanvas.h"
#include "shell/LoadFormWindow.h"

#include <QAction>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

namespace quillet {
namespace {

constexpr QRgb kGreenPixel = 0x00FF00;
constexpr QRgb kRedPixel = 0xFF0000;

class FreighterWindowGui : public GuiFixture {
protected:
    void SetUp() override
    {
        dir.makeSimulator();
        dir.makeAircraft(
            "dc10", "aircraft.cfg",
            "[fltsim.0]\r\ntitle=DC-10\r\n\r\n[WEIGHT_AND_BALANCE]\r\nempty_weight = 237594\r\n");
        dir.writeIni(dir.sim(), {"DC-10-30F,dc10"});
        dir.write("DC-10-30F.gif",
                  TempDir::readFile(std::filesystem::path(QUILLET_PICTURES) / "DC-10-30F.gif"));
    }

    // The form opened with "Adjust".
    QMainWindow* open()
    {
        start();
        QTest::mouseClick(find<QPushButton>(main(), "Command2"), Qt::LeftButton);
        QMainWindow* window = app->window("DC10F");
        EXPECT_NE(window, nullptr);
        return window;
    }

    DC10F& form() const { return static_cast<DC10F&>(*app->forms().existing("DC10F")); }

    std::set<QRgb> colours(int left, int top, int right, int bottom) const
    {
        return coloursIn(dynamic_cast<QtCanvas&>(form().Picture1()).image(), left, top, right, bottom);
    }
};

TEST_F(FreighterWindowGui, OpensWithItsControlsAndLoadsAContainerWithTheMouse)
{
    QMainWindow* window = open();
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(shownTitle(window), "DC-10-30F");
    EXPECT_EQ(window->centralWidget()->size(), QSize(637, 295));
    QWidget* decks = find<QWidget>(window, "Picture1");
    EXPECT_EQ(decks->geometry(), QRect(0, 0, 633, 140));
    EXPECT_EQ(find<QWidget>(window, "Picture2")->geometry(), QRect(296, 176, 154, 109));
    EXPECT_FALSE(find<PictureBox>(window, "Picture2")->picture().isNull());
    EXPECT_EQ(find<QWidget>(window, "lblbow")->geometry().topLeft(), QPoint(24, 184));
    EXPECT_EQ(find<QWidget>(window, "lblpass")->geometry().topLeft(), QPoint(472, 144));
    EXPECT_EQ(find<QLabel>(window, "lblpass")->text(), "Containers  0 / 38");

    QStringList menus;
    for (QAction* menu : window->menuBar()->actions()) {
        menus << menu->text();
        for (QAction* item : menu->menu()->actions())
            menus << item->text();
    }
    // Separators have no text.
    EXPECT_EQ(menus.join('|'), "&File|&Re-load Configuration|&Save Configuration||&Undo|&Redo||Load &Sheet...|"
                               "&Auto Load|&Light Load|&Medium Load|&Heavy Load||Load to &Target...");

    // Container 1L is hit at (2329, 468) twips, pixel (155, 31); its box spans pixels 141 to 177
    // across and 17 to 45 down.
    prompt.answer("3500");
    QTest::mouseClick(decks, Qt::LeftButton, {}, QPoint(155, 31));
    ASSERT_EQ(prompt.asked().size(), 1u);
    EXPECT_EQ(prompt.asked()[0].prompt, "Container 1L weight in lbs");
    EXPECT_EQ(prompt.asked()[0].defaultText, "3500");
    EXPECT_EQ(find<QLabel>(window, "lblpass")->text(), "Containers  1 / 38");
    EXPECT_EQ(find<QLabel>(window, "lblpax")->text(), "PAX weight =  3500 lb.");
    const auto box = colours(143, 19, 175, 43);
    EXPECT_TRUE(box.count(kGreenPixel));
    EXPECT_FALSE(box.count(kRedPixel));
    EXPECT_FALSE(colours(143, 49, 175, 57).count(kGreenPixel));

    window->close();
    QApplication::processEvents();
    EXPECT_TRUE(main()->isVisible());
    // The main window shows the last saved load, and nothing was saved.
    EXPECT_EQ(text("lblpax"), "PAX weight =  0 lb.");
}

TEST_F(FreighterWindowGui, HeavyLoadFillsEveryContainerWithinItsLimits)
{
    QMainWindow* window = open();
    ASSERT_NE(window, nullptr);
    window->findChild<QAction*>("mnuheav")->trigger();
    EXPECT_EQ(find<QLabel>(window, "lblpass")->text(), "Containers  38 / 38");
    const auto deck = colours(0, 0, 632, 139);
    EXPECT_TRUE(deck.count(kGreenPixel));
    EXPECT_FALSE(deck.count(kRedPixel));
    EXPECT_FALSE(find<QLabel>(window, "warning")->isVisible());
}

TEST_F(FreighterWindowGui, AnOverloadedZoneTurnsItsContainersRedAndIsNamedAtTheTop)
{
    QMainWindow* window = open();
    ASSERT_NE(window, nullptr);
    QWidget* decks = find<QWidget>(window, "Picture1");
    // 1L to 3R, full: 53680 lb in zone 1, whose limit is 50000.
    const QPoint containers[] = {{155, 31}, {155, 59}, {191, 31}, {191, 59}, {227, 31}, {227, 59}};
    for (const char* weight : {"8800", "8800", "9020", "9020", "9020", "9020"})
        prompt.answer(weight);
    for (const QPoint& at : containers)
        QTest::mouseClick(decks, Qt::LeftButton, {}, at);
    EXPECT_EQ(form().overloadNote, "Zone Overload");
    EXPECT_TRUE(colours(143, 19, 175, 43).count(kRedPixel));
    EXPECT_FALSE(colours(143, 19, 175, 43).count(kGreenPixel));
    // The note at (500, 50) twips, over "Main Deck".
    EXPECT_TRUE(colours(33, 3, 120, 15).count(kRedPixel));
}

} // namespace
} // namespace quillet
