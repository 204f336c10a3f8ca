#include "AccessibilityCheck.h"
#include "GuiFixture.h"
#include "platform/QtPrompt.h"
#include "shell/ConfigDialog.h"
#include "shell/LoadFormWindow.h"

#include <QDialog>
#include <QTest>
#include <QTimer>
#include <iterator>

namespace quillet {
namespace {

// Each kind of load form, in the order of the aircraft list below, with its caption.
struct FormWindow {
    const char* form;
    const char* caption;
};
const FormWindow kForms[] = {
    {"Beech", "Quillet - Beech 1900D"},           {"Emb120", "Quillet - Embraer EMB-120"},
    {"DHC8", "Quillet - Bombardier DHC-8-300"},   {"Boeing", "B737-300"},
    {"CRJ200", "Quillet - Bombardier CRJ-200ER"}, {"DC10F", "DC-10-30F"},
};

// Every kind of load form on a simulator folder that lacks fs2000.exe, so that the
// configuration dialog opens at start beside the main window.
class AccessibilityGui : public GuiFixture {
protected:
    void SetUp() override
    {
        dir.makeAircraft("beech");
        dir.makeAircraft("emb120");
        dir.makeAircraft("dhc8");
        dir.makeAircraft("b737");
        dir.makeAircraft("crj");
        dir.makeAircraft("dc10");
        dir.writeIni(dir.sim(), {"Beech 1900D,beech", "Empraer EMB_120,emb120", "DHC-8-300,dhc8",
                                 "B737-300,b737", "CRJ-200ER,crj", "DC-10-30F,dc10"});
        start();
    }

    QWidget* open(int index)
    {
        app->handle([&] {
            app->form1().Combo1.setListIndex(index);
            app->form1().Command2_Click();
        });
        return app->window(kForms[index].form);
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
}

TEST_F(AccessibilityGui, EveryWindowIsAFrameOrADialogNamedByItsTitle)
{
    expectWindow(main(), QAccessible::Window, "Quillet Manager");
    expectWindow(app->configDialog(), QAccessible::Dialog, "Quillet - Configure");
    app->handle([this] {
        app->form1().munver_Click();
        app->form1().mnucopyright_Click();
    });
    expectWindow(main()->findChild<QWidget*>("About"), QAccessible::Dialog, "About Quillet");
    expectWindow(main()->findChild<QWidget*>("Form2"), QAccessible::Dialog, "Quillet - Terms of use");

    for (int i = 0; i < static_cast<int>(std::size(kForms)); ++i) {
        QWidget* form = open(i);
        expectWindow(form, QAccessible::Window, kForms[i].caption);
        if (form)
            form->close();
    }

    // And whatever else is shown: never a filler.
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible())
            continue;
        const QAccessible::Role role = accessibleRole(window);
        EXPECT_TRUE(role == QAccessible::Window || role == QAccessible::Dialog)
            << window->objectName().toStdString();
        EXPECT_EQ(accessibleName(window), shownTitle(window));
    }
}

TEST_F(AccessibilityGui, EveryControlOfTheShellWindowsIsNamed)
{
    EXPECT_EQ(unnamedControls(main()), QStringList());
    EXPECT_EQ(unnamedControls(app->configDialog()), QStringList());

    EXPECT_EQ(accessibleLabel(find<QWidget>(main(), "Combo1")), "Select Aircraft");
    EXPECT_EQ(accessibleLabel(find<QWidget>(app->configDialog(), "Combo2")), "Avaliable Aircraft");
    QWidget* picture = find<QWidget>(main(), "PicDHC");
    EXPECT_EQ(accessibleRole(picture), QAccessible::Graphic);
    EXPECT_EQ(accessibleName(picture), "Picture of the Beech 1900D");
    EXPECT_EQ(accessibleName(find<QWidget>(main(), "Textkg")), "Kilograms");
    EXPECT_EQ(accessibleLabel(find<QWidget>(app->configDialog(), "simdir")),
              "Current Directory of Flight Simulator");
    EXPECT_EQ(accessibleName(find<QWidget>(app->configDialog(), "Check2")), "Simulator directory confirmed");
}

TEST_F(AccessibilityGui, EveryControlOfTheLoadFormsIsNamedAndAHotSpotTellsItsLoad)
{
    for (int i = 0; i < static_cast<int>(std::size(kForms)); ++i) {
        SCOPED_TRACE(kForms[i].form);
        QWidget* form = open(i);
        ASSERT_NE(form, nullptr);
        EXPECT_EQ(unnamedControls(form), QStringList());
        form->close();
    }

    QWidget* beech = open(0);
    QWidget* cabin = find<QWidget>(beech, "Picture1");
    EXPECT_EQ(accessibleRole(cabin), QAccessible::Graphic);
    EXPECT_EQ(accessibleName(cabin), "Cabin of the Beech 1900D");
    EXPECT_EQ(accessibleName(find<QWidget>(beech, "Picture2")), "Photograph of the Beech 1900D");
    EXPECT_EQ(accessibleName(find<QWidget>(beech, "Picture4")), "Longitudinal Balance");

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
