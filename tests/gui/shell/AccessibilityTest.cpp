#include "AccessibilityCheck.h"
#include "GuiFixture.h"
#include "platform/QtPrompt.h"
#include "shell/ConfigDialog.h"

#include <QDialog>
#include <QTimer>
#include <iterator>

namespace quillet {
namespace {

// A type of each kind of load form.
const char* const kTypes[] = {"Beech 1900D", "Empraer EMB_120", "DHC-8-300",
                              "B737-300",    "CRJ-200ER",       "DC-10-30F"};

// Every kind of load form on a simulator folder that lacks fs2000.exe, so that the configuration
// dialog opens at start beside the main window.
class AccessibilityGui : public GuiFixture {
protected:
    void SetUp() override
    {
        startWith({std::begin(kTypes), std::end(kTypes)}, "[fltsim.0]\r\ntitle=test\r\n", false);
    }
};

void expectWindow(QWidget* window, QAccessible::Role role, const QString& title)
{
    ASSERT_NE(window, nullptr);
    SCOPED_TRACE(title.toStdString());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(shownTitle(window), title);
    EXPECT_EQ(accessibleRole(window), role) << "a frame is role Window, a dialog Dialog; Client is a filler";
    EXPECT_EQ(accessibleName(window), title);
    EXPECT_EQ(unnamedControls(window), QStringList());
}

TEST_F(AccessibilityGui, EveryWindowIsAFrameOrADialogNamedByItsTitleWithEveryControlNamed)
{
    expectWindow(main(), QAccessible::Window, "Quillet Manager");
    expectWindow(app->configDialog(), QAccessible::Dialog, "Quillet - Configure");
    app->handle([this] {
        app->form1().munver_Click();
        app->form1().mnucopyright_Click();
    });
    expectWindow(main()->findChild<QWidget*>("About"), QAccessible::Dialog, "About Quillet");
    EXPECT_TRUE(text("Label1", main()->findChild<QWidget*>("About")).contains("Quillet Manager 2.0"));
    expectWindow(main()->findChild<QWidget*>("Form2"), QAccessible::Dialog, "Quillet - Terms of use");

    // The forms' titles are the layout and window tests'; here, that the title names the window.
    for (int i = 0; i < static_cast<int>(std::size(kTypes)); ++i) {
        QWidget* form = adjust(i);
        ASSERT_NE(form, nullptr);
        expectWindow(form, QAccessible::Window, shownTitle(form));
        form->close();
    }
}

TEST_F(AccessibilityGui, ControlsAreNamedAfterTheirLabelsAndAHotSpotTellsItsLoad)
{
    EXPECT_EQ(accessibleLabel(find<QWidget>(main(), "Combo1")), "Select Aircraft");
    EXPECT_EQ(accessibleLabel(find<QWidget>(app->configDialog(), "Combo2")), "Avaliable Aircraft");
    QWidget* picture = find<QWidget>(main(), "PicDHC");
    EXPECT_EQ(accessibleRole(picture), QAccessible::Graphic);
    EXPECT_EQ(accessibleName(picture), "Picture of the Beech 1900D");
    EXPECT_EQ(accessibleName(find<QWidget>(main(), "Textkg")), "Kilograms");
    EXPECT_EQ(accessibleLabel(find<QWidget>(app->configDialog(), "simdir")),
              "Current Directory of Flight Simulator");
    EXPECT_EQ(accessibleName(find<QWidget>(app->configDialog(), "Check2")), "Simulator directory confirmed");

    QWidget* beech = adjust(0);
    QWidget* cabin = find<QWidget>(beech, "Picture1");
    EXPECT_EQ(accessibleRole(cabin), QAccessible::Graphic);
    EXPECT_EQ(accessibleName(cabin), "Cabin of the Beech 1900D");
    EXPECT_EQ(accessibleName(find<QWidget>(beech, "Picture2")), "Photograph of the Beech 1900D");
    EXPECT_EQ(accessibleName(find<QWidget>(beech, "Picture4")), "Longitudinal Balance");
    EXPECT_EQ(accessibleName(find<QWidget>(beech, "Picture3")), "Lateral Balance");

    QWidget* seat = find<QWidget>(beech, "location(3)");
    QAccessibleInterface* announced = QAccessible::queryAccessibleInterface(seat);
    EXPECT_EQ(announced->text(QAccessible::Name), "Passenger 1A");
    EXPECT_EQ(announced->text(QAccessible::Description), "Empty");
    prompt.answer("170");
    QTest::mouseClick(seat, Qt::LeftButton);
    EXPECT_EQ(announced->text(QAccessible::Description), "Passenger 1A 170 lb.");
}

TEST(InputBoxAccessibility, TheInputBoxIsADialogNamedByItsTitle)
{
    QAccessible::Role role = QAccessible::NoRole;
    QString name;
    QStringList unnamed{"not shown"};
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        role = accessibleRole(box);
        name = accessibleName(box);
        unnamed = unnamedControls(box);
        box->reject();
    });
    QtPrompt prompt;
    EXPECT_EQ(prompt.inputBox("Passenger 1A weight in lbs", "Pax Details", "170"), std::nullopt);
    EXPECT_EQ(role, QAccessible::Dialog);
    EXPECT_EQ(name, "Pax Details");
    EXPECT_EQ(unnamed, QStringList());
}

} // namespace
} // namespace quillet
