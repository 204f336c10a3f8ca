#include "GuiFixture.h"
#include "cfgfile/StationFile.h"
#include "jets/Boeing.h"
#include "platform/PictureBox.h"
#include "platform/QtCanvas.h"
#include "shell/LoadFormWindow.h"

#include <QAction>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

namespace quillet {
namespace {

constexpr QRgb kGreenPixel = 0x00FF00;
constexpr QRgb kRedPixel = 0xFF0000;

class JetWindowGui : public GuiFixture {
protected:
    void SetUp() override
    {
        dir.makeSimulator();
        dir.makeAircraft("b737", "aircraft.cfg",
                         "[fltsim.0]\r\ntitle=737\r\n\r\n[WEIGHT_AND_BALANCE]\r\nempty_weight = 69953\r\n");
        dir.writeIni(dir.sim(), {"B737-300,b737"});
        dir.write("B737-300.gif",
                  TempDir::readFile(std::filesystem::path(QUILLET_PICTURES) / "B737-300.gif"));
    }

    QMainWindow* jetWindow() const { return app->window("Boeing"); }
    Boeing& boeing() const { return static_cast<Boeing&>(*app->forms().existing("Boeing")); }

    // The colours found in a pixel rectangle of the deck picture.
    std::set<QRgb> colours(int left, int top, int right, int bottom) const
    {
        return coloursIn(dynamic_cast<QtCanvas&>(boeing().Picture1()).image(), left, top, right, bottom);
    }
};

TEST_F(JetWindowGui, OpensOnTheB737AndLoadsASeatWithTheMouse)
{
    start();
    QTest::mouseClick(find<QPushButton>(main(), "Command2"), Qt::LeftButton);
    ASSERT_NE(jetWindow(), nullptr);
    EXPECT_TRUE(jetWindow()->isVisible());
    EXPECT_EQ(shownTitle(jetWindow()), "B737-300");
    EXPECT_EQ(jetWindow()->centralWidget()->size(), QSize(654, 325));
    QWidget* decks = find<QWidget>(jetWindow(), "Picture1");
    EXPECT_EQ(decks->geometry(), QRect(8, 0, 633, 140));
    EXPECT_EQ(find<QWidget>(jetWindow(), "Picture2")->geometry(), QRect(288, 176, 154, 107));
    EXPECT_FALSE(find<PictureBox>(jetWindow(), "Picture2")->picture().isNull());

    QStringList menus;
    for (QAction* menu : jetWindow()->menuBar()->actions()) {
        menus << menu->text();
        for (QAction* item : menu->menu()->actions())
            menus << (item->isSeparator() ? QStringLiteral("-") : item->text());
    }
    EXPECT_EQ(menus.join('|'),
              "&File|&Re-load Configuration|&Save configuration|-|&Undo|&Redo|-|Load &Sheet...|&Auto Load|"
              "&Empty Aircraft|-|&Light Load|&Medium Load|&Heavy Load|-|Load to &Target...");

    // Seat 1A is drawn at (3045, 854) twips: pixel (203, 56.9) of the picture.
    prompt.answer("170");
    QTest::mouseClick(decks, Qt::LeftButton, {}, QPoint(203, 57));
    ASSERT_EQ(prompt.asked().size(), 1u);
    EXPECT_EQ(prompt.asked()[0].prompt, "Passenger 1A weight in lbs");
    EXPECT_EQ(find<QLabel>(jetWindow(), "lblpass")->text(), "Passengers  1 / 128");
    EXPECT_EQ(find<QLabel>(jetWindow(), "lblpax")->text(), "PAX weight =  170 lb.");
    EXPECT_TRUE(colours(202, 56, 204, 58).count(kGreenPixel));

    QTest::mouseClick(decks, Qt::RightButton, {}, QPoint(203, 57));
    EXPECT_EQ(find<QLabel>(jetWindow(), "lblpass")->text(), "Passengers  1 / 128");

    jetWindow()->close();
    QApplication::processEvents();
    EXPECT_TRUE(main()->isVisible());
}

TEST_F(JetWindowGui, LoadedHoldsAreHatchedInsideTheirOutlineOnly)
{
    start();
    QTest::mouseClick(find<QPushButton>(main(), "Command2"), Qt::LeftButton);
    QWidget* decks = find<QWidget>(jetWindow(), "Picture1");
    // Forward hold: (9..26 ft, -4..4 ft) around the lower-deck origin (68, 21) at 70 twips per foot,
    // that is pixels 196..275 across and 79..116 down; the aft hold lies at pixels 364..489.
    prompt.answer("1500");
    QTest::mouseClick(decks, Qt::LeftButton, {}, QPoint(236, 98));
    EXPECT_EQ(boeing().Picture1().scaleWidth(), 9495);
    const auto forward = colours(200, 83, 270, 112);
    EXPECT_TRUE(forward.count(kGreenPixel));
    EXPECT_FALSE(forward.count(kRedPixel));
    EXPECT_FALSE(colours(200, 70, 270, 76).count(kGreenPixel));
    EXPECT_FALSE(colours(370, 83, 480, 112).count(kGreenPixel));

    // Over its 2002 lb the hold turns red at once: the click checks the cargo before drawing.
    QTest::mouseClick(decks, Qt::LeftButton, {}, QPoint(236, 98));
    prompt.answer("2500");
    QTest::mouseClick(decks, Qt::LeftButton, {}, QPoint(236, 98));
    const auto overloaded = colours(200, 83, 270, 112);
    EXPECT_TRUE(overloaded.count(kRedPixel));
    EXPECT_FALSE(overloaded.count(kGreenPixel));

    // A pointer resting on the hold shows its label with the overload.
    QTest::mouseMove(decks, QPoint(240, 100));
    QApplication::processEvents();
    EXPECT_TRUE(colours(200, 83, 270, 112).count(kRedPixel));
}

TEST_F(JetWindowGui, TheDC8DeckIsCutAtThePictureEdgeAndTakesAHeavyLoad)
{
    dir.makeAircraft("dc8", "aircraft.cfg", "[WEIGHT_AND_BALANCE]\r\nempty_weight = 152700\r\n");
    dir.writeIni(dir.sim(), {"DC-8-71F,dc8"});
    start();
    QTest::mouseClick(find<QPushButton>(main(), "Command2"), Qt::LeftButton);
    ASSERT_NE(jetWindow(), nullptr);
    EXPECT_EQ(shownTitle(jetWindow()), "DC-8-71F");

    // The tail cone leaves the picture at x = -100 ft, 2.2 ft either side of the centre line: pixel
    // rows 27 and 41 of the last columns.
    constexpr QRgb kBlackPixel = 0x000000;
    EXPECT_TRUE(colours(630, 25, 632, 29).count(kBlackPixel));
    EXPECT_TRUE(colours(630, 39, 632, 43).count(kBlackPixel));

    jetWindow()->findChild<QAction*>(QStringLiteral("mnuheav"))->trigger();
    QApplication::processEvents();
    // Container 1 at (52.17, 0) ft and the aft hold at (-48.5, 0) ft are hatched green.
    EXPECT_TRUE(colours(150, 30, 162, 38).count(kGreenPixel));
    EXPECT_TRUE(colours(466, 85, 478, 94).count(kGreenPixel));
    EXPECT_EQ(find<QLabel>(jetWindow(), "lblpass")->text(), "Passengers  0 / 3");

    // Over the aftmost container the label opens to the left, over containers 15 to 17.
    EXPECT_TRUE(colours(480, 31, 540, 37).count(kGreenPixel));
    QTest::mouseMove(find<QWidget>(jetWindow(), "Picture1"), QPoint(560, 34));
    QApplication::processEvents();
    EXPECT_FALSE(colours(480, 31, 540, 37).count(kGreenPixel));
}

TEST_F(JetWindowGui, EditsAreUndoneAndSavedFromTheKeyboardAndAnUnsavedLoadIsNotClosedUnasked)
{
    start();
    QTest::mouseClick(find<QPushButton>(main(), "Command2"), Qt::LeftButton);
    QMainWindow* window = jetWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    QAction* undo = window->findChild<QAction*>(QStringLiteral("mnuundo"));
    QAction* redo = window->findChild<QAction*>(QStringLiteral("mnuredo"));
    ASSERT_TRUE(undo && redo);
    EXPECT_FALSE(undo->isEnabled());
    const auto keys = [&](QKeyCombination combination) {
        QTest::keyClick(window, combination.key(), combination.keyboardModifiers());
        QApplication::processEvents();
    };
    const auto passengers = [&] { return find<QLabel>(window, "lblpass")->text(); };

    window->findChild<QAction*>(QStringLiteral("mnuheav"))->trigger();
    const QString heavy = passengers();
    EXPECT_NE(heavy, "Passengers  0 / 128");
    EXPECT_EQ(shownTitle(window), "B737-300*");
    EXPECT_EQ(undo->text(), "&Undo Heavy Load");

    keys(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(passengers(), "Passengers  0 / 128");
    EXPECT_EQ(shownTitle(window), "B737-300");
    EXPECT_EQ(redo->text(), "&Redo Heavy Load");
    keys(Qt::CTRL | Qt::Key_Y);
    EXPECT_EQ(passengers(), heavy);
    keys(Qt::CTRL | Qt::Key_Z);
    keys(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    EXPECT_EQ(passengers(), heavy);

    // Escape asks; "Cancel" keeps the form open with its load.
    prompt.answerSave(SaveChoice::Cancel);
    keys(Qt::Key_Escape);
    ASSERT_EQ(prompt.saveQuestions().size(), 1u);
    EXPECT_EQ(prompt.saveQuestions()[0], "The load of the B737-300 has not been saved.\n\nSave it before closing?");
    EXPECT_TRUE(window->isVisible());

    // Ctrl+S writes the load as shown and says so for a moment.
    keys(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(TempDir::readFile(dir.path() / "B737-300.cfg"), stationFileText(app->session().state));
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^B737-300 - saved at \\d\\d:\\d\\d$")).match(shownTitle(window)).hasMatch())
        << shownTitle(window).toStdString();

    // Saved, Ctrl+W closes without a question.
    keys(Qt::CTRL | Qt::Key_W);
    EXPECT_EQ(prompt.saveQuestions().size(), 1u);
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(main()->isVisible());
}

} // namespace
} // namespace quillet
