// Loading a form without the mouse: with the keyboard on every kind of load form, and through the
// accessibility interface on the jet decks.

#include "AccessibilityCheck.h"
#include "GuiFixture.h"
#include "TypeName.h"

namespace quillet {
namespace {

// A type of each kind of load form, and the station lines its station file holds once the first
// person and the last hold or container are loaded with 170 and 1000 lb.
struct KeyboardForm {
    const char* type;
    const char* picture; // the cabin or decks
    const char* firstPerson;
    const char* lastCargo;
};

const KeyboardForm kKeyboardForms[] = {
    {"Beech 1900D", "Picture1", "\"Pilot\",13.5,-2,0,170", "\"Cargo\",-17,0,0,1000"},
    {"Empraer EMB_120", "Picture2", "\"Pilot\",14,-2,0,170", "\"Cargo\",-22,0,0,1000"},
    {"DHC-8-300", "Picture2", "\"Pilot\",26,-3,0,170", "\"Cargo\",-22,0,0,1000"},
    {"CRJ-200ER", "Picture2", "\"Pilot\",28,-1.55,0,170", "\"Cargo\",-20,0,0,1000"},
    {"B737-300", "Picture1", "\"Pilot\",39,-2,0,170", "\"Lower Deck Cargo Aft\",-23.25,0,0,1000"},
    {"DC-10-30F", "Picture1", "\"Pilot\",70,-2,0,170", "\"Container C5R\",-51.142,2.604,0,1000"},
};

using KeyboardLoad = GuiFixture;

class KeyboardLoadEveryForm : public GuiFixture, public ::testing::WithParamInterface<KeyboardForm> {};

TEST_P(KeyboardLoadEveryForm, TabReachesTheCabinAndEnterLoadsTheFirstPersonAndTheLastHold)
{
    const KeyboardForm& kind = GetParam();
    LoadFormWindow* window = open(kind.type);
    ASSERT_NE(window, nullptr);
    QWidget* picture = find<QWidget>(window, kind.picture);
    for (int tabs = 0; tabs < 20 && QApplication::focusWidget() != picture; ++tabs)
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : window, Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), picture) << "Tab never reaches the cabin";
    QWidget* mark = picture->findChild<QWidget*>("focusMark");
    EXPECT_TRUE(mark && mark->isVisible());

    prompt.answer("170");
    QTest::keyClick(picture, Qt::Key_End);
    QTest::keyClick(picture, Qt::Key_Home);
    QTest::keyClick(picture, Qt::Key_Return);
    prompt.answer("1000");
    QTest::keyClick(picture, Qt::Key_End);
    QTest::keyClick(picture, Qt::Key_Space);
    EXPECT_EQ(text("lblpax", window), "PAX weight =  1170 lb.");

    window->findChild<QAction*>("mnusave")->trigger();
    const std::string stations = dir.read(std::string(kind.type) + ".cfg");
    EXPECT_NE(stations.find(std::string(kind.firstPerson) + "\r\n"), std::string::npos) << stations;
    EXPECT_NE(stations.find(std::string(kind.lastCargo) + "\r\n"), std::string::npos) << stations;
}

INSTANTIATE_TEST_SUITE_P(EveryKind, KeyboardLoadEveryForm, ::testing::ValuesIn(kKeyboardForms),
                         [](const auto& info) { return testNameOf(info.param.type); });

// The index of the station a screen reader names so, or -1.
int childNamed(QAccessibleInterface* picture, const QString& name)
{
    for (int i = 0; i < picture->childCount(); ++i) {
        if (picture->child(i)->text(QAccessible::Name) == name)
            return i;
    }
    return -1;
}

TEST_F(KeyboardLoad, AScreenReaderReadsTheDecksStationByStationAndPressesOne)
{
    LoadFormWindow* window = open("B737-300");
    ASSERT_NE(window, nullptr);
    QWidget* decks = find<QWidget>(window, "Picture1");
    QAccessibleInterface* picture = QAccessible::queryAccessibleInterface(decks);
    ASSERT_EQ(picture->childCount(), 136) << "every seat, crew seat and hold";
    EXPECT_EQ(picture->child(0)->text(QAccessible::Name), "Pilot, empty");
    EXPECT_EQ(picture->child(0)->role(), QAccessible::Button);
    EXPECT_EQ(picture->child(135)->text(QAccessible::Name), "Lower Deck Cargo Aft, empty");

    const int seat = childNamed(picture, "Passenger 12C, empty");
    ASSERT_GE(seat, 0);
    QAccessibleInterface* station = picture->child(seat);
    EXPECT_EQ(station->parent(), picture);
    EXPECT_EQ(picture->indexOfChild(station), seat);
    EXPECT_EQ(picture->childAt(station->rect().center().x(), station->rect().center().y()), station);

    QAccessibleActionInterface* actions = station->actionInterface();
    ASSERT_NE(actions, nullptr);
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(decks->hasFocus());
    EXPECT_EQ(picture->focusChild(), station);
    EXPECT_TRUE(station->state().focused);

    prompt.answer("170");
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(station->text(QAccessible::Name), "Passenger 12C, 170 lb");
    EXPECT_EQ(text("lblpax", window), "PAX weight =  170 lb.");
    ASSERT_EQ(prompt.asked().size(), 1u);
    EXPECT_EQ(prompt.asked()[0].prompt, "Passenger 12C weight in lbs");

    // A press is undone like a click.
    window->findChild<QAction*>("mnuundo")->trigger();
    EXPECT_EQ(station->text(QAccessible::Name), "Passenger 12C, empty");

    // The keyboard goes on from where the screen reader left the focus.
    QTest::keyClick(decks, Qt::Key_Right);
    EXPECT_EQ(picture->focusChild()->text(QAccessible::Name), "Passenger 12D, empty");
}

} // namespace
} // namespace quillet
