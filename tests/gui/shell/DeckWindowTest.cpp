#include "GuiFixture.h"
#include "TypeName.h"

#include <QPushButton>

namespace quillet {
namespace {

// A jet and a freighter as "Adjust" opens them, and the first station a click at `click` loads with
// the weight offered. `hit` lies inside the station's mark and `below` beside it.
struct DeckWindowCase {
    const char* type;
    QSize client;
    QRect decks, photo;
    QPoint bowAt, countAt;
    const char* menus;
    QPoint click;
    const char *answer, *question, *countLine, *paxLine;
    QRect hit, below;
};

const DeckWindowCase kDeckWindows[] = {
    {"B737-300", QSize(654, 325), QRect(8, 0, 633, 140), QRect(288, 176, 154, 107), QPoint(16, 184),
     QPoint(464, 144),
     "&File|&Re-load Configuration|&Save configuration|-|&Undo|&Redo|-|Load &Sheet...|&Auto Load|"
     "&Empty Aircraft|-|&Light Load|&Medium Load|&Heavy Load|-|Load to &Target...",
     QPoint(203, 57), "170", "Passenger 1A weight in lbs", "Passengers  1 / 128", "PAX weight =  170 lb.",
     QRect(202, 56, 3, 3), QRect(202, 62, 3, 3)},
    // Container 1L is hit at (2329, 468) twips; its box spans pixels 141 to 177 across and 17 to 45 down.
    {"DC-10-30F", QSize(637, 295), QRect(0, 0, 633, 140), QRect(296, 176, 154, 109), QPoint(24, 184),
     QPoint(472, 144),
     "&File|&Re-load Configuration|&Save Configuration|-|&Undo|&Redo|-|Load &Sheet...|"
     "&Auto Load|&Light Load|&Medium Load|&Heavy Load|-|Load to &Target...",
     QPoint(155, 31), "3500", "Container 1L weight in lbs", "Containers  1 / 38", "PAX weight =  3500 lb.",
     QRect(143, 19, 33, 25), QRect(143, 49, 33, 9)},
};

class DeckWindowGui : public GuiFixture, public ::testing::WithParamInterface<DeckWindowCase> {};

TEST_P(DeckWindowGui, OpensWithItsControlsAndLoadsAStationWithTheMouse)
{
    const DeckWindowCase& c = GetParam();
    startWith({c.type});
    QTest::mouseClick(find<QPushButton>(main(), "Command2"), Qt::LeftButton);
    QMainWindow* window = app->window(std::string(findAircraftType(c.type)->form));
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(shownTitle(window), c.type);
    EXPECT_EQ(window->centralWidget()->size(), c.client);
    QWidget* decks = find<QWidget>(window, "Picture1");
    EXPECT_EQ(decks->geometry(), c.decks);
    EXPECT_EQ(find<QWidget>(window, "Picture2")->geometry(), c.photo);
    EXPECT_FALSE(find<PictureBox>(window, "Picture2")->picture().isNull());
    EXPECT_EQ(find<QWidget>(window, "lblbow")->geometry().topLeft(), c.bowAt);
    EXPECT_EQ(find<QWidget>(window, "lblpass")->geometry().topLeft(), c.countAt);
    EXPECT_EQ(menuTexts(window), c.menus);

    prompt.answer(c.answer);
    QTest::mouseClick(decks, Qt::LeftButton, {}, c.click);
    ASSERT_EQ(prompt.asked().size(), 1u);
    EXPECT_EQ(prompt.asked()[0].prompt, c.question);
    EXPECT_EQ(text("lblpass", window), c.countLine);
    EXPECT_EQ(text("lblpax", window), c.paxLine);
    const auto colours = [&](const QRect& r) {
        return deck(window, r.left(), r.top(), r.right(), r.bottom());
    };
    EXPECT_TRUE(colours(c.hit).count(kGreenPixel));
    EXPECT_FALSE(colours(c.hit).count(kRedPixel));
    EXPECT_FALSE(colours(c.below).count(kGreenPixel));

    QTest::mouseClick(decks, Qt::RightButton, {}, c.click);
    EXPECT_EQ(text("lblpass", window), c.countLine) << "the right button never empties a station";
    find<QAction>(window, "mnuheav")->trigger(); // what it loads is the core's
    EXPECT_NE(text("lblpass", window), c.countLine);

    window->close();
    QApplication::processEvents();
    EXPECT_TRUE(main()->isVisible());
    EXPECT_EQ(text("lblpax"), "PAX weight =  0 lb.") << "the main window shows the last saved load";
}

INSTANTIATE_TEST_SUITE_P(JetAndFreighter, DeckWindowGui, ::testing::ValuesIn(kDeckWindows),
                         [](const auto& info) { return testNameOf(info.param.type); });

} // namespace
} // namespace quillet
