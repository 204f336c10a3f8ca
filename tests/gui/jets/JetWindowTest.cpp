#include "GuiFixture.h"
#include "cfgfile/StationFile.h"

#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

namespace quillet {
namespace {

constexpr QRgb kGreenPixel = 0x00FF00;

class JetWindowGui : public GuiFixture {
protected:
    QMainWindow* jetWindow() const { return app->window("Boeing"); }
    std::set<QRgb> deck(int left, int top, int right, int bottom) const
    {
        return colours(jetWindow(), "Picture1", left, top, right, bottom);
    }
};

TEST_F(JetWindowGui, OpensOnTheB737AndLoadsASeatWithTheMouse)
{
    startWith({"B737-300"});
    QTest::mouseClick(find<QPushButton>(main(), "Command2"), Qt::LeftButton);
    ASSERT_NE(jetWindow(), nullptr);
    EXPECT_TRUE(jetWindow()->isVisible());
    EXPECT_EQ(shownTitle(jetWindow()), "B737-300");
    EXPECT_EQ(jetWindow()->centralWidget()->size(), QSize(654, 325));
    QWidget* decks = find<QWidget>(jetWindow(), "Picture1");
    EXPECT_EQ(decks->geometry(), QRect(8, 0, 633, 140));
    EXPECT_EQ(find<QWidget>(jetWindow(), "Picture2")->geometry(), QRect(288, 176, 154, 107));
    EXPECT_FALSE(find<PictureBox>(jetWindow(), "Picture2")->picture().isNull());
    EXPECT_EQ(menuTexts(jetWindow()),
              "&File|&Re-load Configuration|&Save configuration|-|&Undo|&Redo|-|Load &Sheet...|&Auto Load|"
              "&Empty Aircraft|-|&Light Load|&Medium Load|&Heavy Load|-|Load to &Target...");

    // Seat 1A is drawn at (3045, 854) twips: pixel (203, 56.9) of the picture.
    prompt.answer("170");
    QTest::mouseClick(decks, Qt::LeftButton, {}, QPoint(203, 57));
    ASSERT_EQ(prompt.asked().size(), 1u);
    EXPECT_EQ(prompt.asked()[0].prompt, "Passenger 1A weight in lbs");
    EXPECT_EQ(text("lblpass", jetWindow()), "Passengers  1 / 128");
    EXPECT_EQ(text("lblpax", jetWindow()), "PAX weight =  170 lb.");
    EXPECT_TRUE(deck(202, 56, 204, 58).count(kGreenPixel));
    EXPECT_EQ(find<PictureBox>(jetWindow(), "Picture1")->canvas()->scaleWidth(), 9495);

    QTest::mouseClick(decks, Qt::RightButton, {}, QPoint(203, 57));
    EXPECT_EQ(text("lblpass", jetWindow()), "Passengers  1 / 128");

    jetWindow()->close();
    QApplication::processEvents();
    EXPECT_TRUE(main()->isVisible());
}

TEST_F(JetWindowGui, TheDC8DeckIsCutAtThePictureEdgeAndTakesAHeavyLoad)
{
    startWith({"DC-8-71F"});
    ASSERT_NE(adjust(), nullptr);
    EXPECT_EQ(shownTitle(jetWindow()), "DC-8-71F");

    // The tail cone leaves the picture at x = -100 ft, 2.2 ft either side of the centre line: pixel
    // rows 27 and 41 of the last columns.
    EXPECT_TRUE(deck(630, 25, 632, 29).count(0x000000));
    EXPECT_TRUE(deck(630, 39, 632, 43).count(0x000000));

    find<QAction>(jetWindow(), "mnuheav")->trigger();
    QApplication::processEvents();
    // Container 1 at (52.17, 0) ft and the aft hold at (-48.5, 0) ft are hatched green.
    EXPECT_TRUE(deck(150, 30, 162, 38).count(kGreenPixel));
    EXPECT_TRUE(deck(466, 85, 478, 94).count(kGreenPixel));
    EXPECT_EQ(text("lblpass", jetWindow()), "Passengers  0 / 3");

    // Over the aftmost container the label opens to the left, over containers 15 to 17.
    EXPECT_TRUE(deck(480, 31, 540, 37).count(kGreenPixel));
    QTest::mouseMove(find<QWidget>(jetWindow(), "Picture1"), QPoint(560, 34));
    QApplication::processEvents();
    EXPECT_FALSE(deck(480, 31, 540, 37).count(kGreenPixel));
}

TEST_F(JetWindowGui, EditsAreUndoneAndSavedFromTheKeyboardAndAnUnsavedLoadIsNotClosedUnasked)
{
    startWith({"B737-300"});
    QMainWindow* window = adjust();
    ASSERT_NE(window, nullptr);
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    QAction* undo = find<QAction>(window, "mnuundo");
    QAction* redo = find<QAction>(window, "mnuredo");
    EXPECT_FALSE(undo->isEnabled());
    const auto keys = [&](QKeyCombination combination) {
        QTest::keyClick(window, combination.key(), combination.keyboardModifiers());
        QApplication::processEvents();
    };

    find<QAction>(window, "mnuheav")->trigger();
    const QString heavy = text("lblpass", window);
    EXPECT_NE(heavy, "Passengers  0 / 128");
    EXPECT_EQ(shownTitle(window), "B737-300*");
    EXPECT_EQ(undo->text(), "&Undo Heavy Load");

    keys(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(text("lblpass", window), "Passengers  0 / 128");
    EXPECT_EQ(shownTitle(window), "B737-300");
    EXPECT_EQ(redo->text(), "&Redo Heavy Load");
    keys(Qt::CTRL | Qt::Key_Y);
    EXPECT_EQ(text("lblpass", window), heavy);
    keys(Qt::CTRL | Qt::Key_Z);
    keys(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    EXPECT_EQ(text("lblpass", window), heavy);

    // Escape asks; "Cancel" keeps the form open with its load.
    prompt.answerSave(SaveChoice::Cancel);
    keys(Qt::Key_Escape);
    ASSERT_EQ(prompt.saveQuestions().size(), 1u);
    EXPECT_EQ(prompt.saveQuestions()[0],
              "The load of the B737-300 has not been saved.\n\nSave it before closing?");
    EXPECT_TRUE(window->isVisible());

    // Ctrl+S writes the load as shown and says so for a moment.
    keys(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(TempDir::readFile(dir.path() / "B737-300.cfg"), stationFileText(app->session().state));
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^B737-300 - saved at \\d\\d:\\d\\d$"))
                    .match(shownTitle(window))
                    .hasMatch())
        << shownTitle(window).toStdString();

    // Saved, Ctrl+W closes without a question.
    keys(Qt::CTRL | Qt::Key_W);
    EXPECT_EQ(prompt.saveQuestions().size(), 1u);
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(main()->isVisible());
}

} // namespace
} // namespace quillet
