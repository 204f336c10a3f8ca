#include "GuiFixture.h"
#include "cfgfile/StationFile.h"

#include <QRegularExpression>

namespace quillet {
namespace {

class JetWindowGui : public GuiFixture {
protected:
    QMainWindow* jetWindow() const { return app->window("Boeing"); }
};

// Where the DC-8's label opens and the hatching of holds are the core's and the deck test's; here,
// that the pointer's moves reach the form.
TEST_F(JetWindowGui, ThePointerOverALoadedContainerOpensItsLabel)
{
    ASSERT_NE(open("DC-8-71F"), nullptr);
    find<QAction>(jetWindow(), "mnuheav")->trigger();
    // Over the aftmost container the label opens to the left, over containers 15 to 17.
    EXPECT_TRUE(deck(jetWindow(), 480, 31, 540, 37).count(kGreenPixel));
    QTest::mouseMove(find<QWidget>(jetWindow(), "Picture1"), QPoint(560, 34));
    QApplication::processEvents();
    EXPECT_FALSE(deck(jetWindow(), 480, 31, 540, 37).count(kGreenPixel));
}

TEST_F(JetWindowGui, EditsAreUndoneAndSavedFromTheKeyboardAndAnUnsavedLoadIsNotClosedUnasked)
{
    QMainWindow* window = open("B737-300");
    ASSERT_NE(window, nullptr);
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
