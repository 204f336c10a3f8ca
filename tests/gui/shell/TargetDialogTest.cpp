#include "shell/TargetDialog.h"

#include "GuiFixture.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QSpinBox>

namespace quillet {
namespace {

class TargetDialogGui : public GuiFixture {
protected:
    void SetUp() override
    {
        startWith({"B737-300"});
        window = adjust();
        ASSERT_NE(window, nullptr);
    }

    // Opens the dialog from the preset menu's last item.
    TargetDialog* openDialog()
    {
        QAction* item = find<QAction>(window, "mnutarget");
        EXPECT_EQ(item->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_T));
        EXPECT_EQ(window->menuBar()->actions().at(1)->menu()->actions().last(), item);
        item->trigger();
        auto* dialog = window->findChild<TargetDialog*>();
        EXPECT_TRUE(dialog && dialog->isVisible());
        if (dialog) {
            dialog->activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        }
        return dialog;
    }

    // Replaces the text of the field that has the focus, as a user typing over it.
    static void typeOver(QWidget* dialog, const QString& text)
    {
        QWidget* field = dialog->focusWidget();
        ASSERT_NE(field, nullptr);
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, text);
    }

    QMainWindow* window = nullptr;
};

TEST_F(TargetDialogGui, SeatsAndStowsTheTypedLoadByKeyboard)
{
    TargetDialog* dialog = openDialog();
    ASSERT_NE(dialog, nullptr);
    ASSERT_NE(dialog->focusWidget(), nullptr);
    EXPECT_EQ(dialog->focusWidget()->objectName(), "passengers");
    typeOver(dialog, "100");
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab); // weight per passenger stays 170
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab); // plan by cargo
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(dialog->focusWidget()->objectName(), "cargo");
    typeOver(dialog, "5000");
    EXPECT_TRUE(find<QLabel>(dialog, "preview")->text().contains("In balance"));
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
    QApplication::processEvents();

    EXPECT_EQ(text("lblpass", window), "Passengers  100 / 128");
    EXPECT_EQ(text("lblpax", window), "PAX weight =  22000 lb.");
    EXPECT_FALSE(find<QLabel>(window, "warning")->isVisible());
}

TEST_F(TargetDialogGui, RefusesAZeroFuelWeightAboveTheMaximumAndCancelChangesNothing)
{
    TargetDialog* dialog = openDialog();
    ASSERT_NE(dialog, nullptr);
    auto* loadBy = find<QWidget>(dialog, "loadBy");
    loadBy->setFocus();
    QTest::keyClick(loadBy, Qt::Key_Down); // zero-fuel weight; the cargo field is then skipped
    QTest::keyClick(loadBy, Qt::Key_Tab);
    EXPECT_EQ(dialog->focusWidget()->objectName(), "zeroFuelWeight");
    typeOver(dialog, "110000");
    EXPECT_EQ(find<QLabel>(dialog, "preview")->text().toStdString(),
              "The zero-fuel weight of 110000 lb is above the maximum of 102953 lb by 7047 lb.");
    EXPECT_FALSE(find<QDialogButtonBox>(dialog, "buttons")->button(QDialogButtonBox::Ok)->isEnabled());

    QTest::keyClick(dialog->focusWidget(), Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_EQ(text("lblpass", window), "Passengers  0 / 128");
    EXPECT_EQ(text("lblpax", window), "PAX weight =  0 lb.");
}

} // namespace
} // namespace quillet
