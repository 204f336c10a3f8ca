#include "GuiFixture.h"
#include "LayoutCheck.h"
#include "shell/ConfigDialog.h"

#include <QGroupBox>
#include <QImage>

namespace quillet {
namespace {

using namespace layout;

class ShellLayout : public GuiFixture {
protected:
    void SetUp() override
    {
        dir.writeIni(dir.sim(), {});
        start();
    }
};

// The main window and its converter frame, and the configuration dialog opened at start with an
// empty aircraft menu, before anything is typed.
TEST_F(ShellLayout, MainWindowConverterAndConfigurationDialogControlsStandWhereDesigned)
{
    Design form1 = readDesign("Main.layout");
    form1.setFont("Label4", Font{"Times New Roman", 27.75, true});
    expectDesign(main(), main()->centralWidget(), form1);
    expectControls(find<QGroupBox>(main(), "Converter"), readDesign("Converter.layout").controls);

    Design form4 = readDesign("Configure.layout");
    for (const char* label : {"Label1", "Label2", "Label4"})
        form4.setFont(label, Font{"Arial", 9.75, false});
    // The check box's indicator is larger than its designed box in this style: it grows from its
    // corner so that it shows whole.
    expectDesign(app->configDialog(), app->configDialog(), form4, {"Check2"});
}

// The first pixel row inside `box` that holds dark ink (text).
int firstInkRow(const QImage& image, const QRect& box)
{
    for (int y = box.top(); y <= box.bottom(); ++y) {
        for (int x = box.left(); x <= box.right(); ++x) {
            if (qGray(image.pixel(x, y)) < 128)
                return y;
        }
    }
    return -1;
}

TEST_F(ShellLayout, DialogCaptionsOfOneRowAlignAtTheTop)
{
    // "Active Aircraft" and "Directory" share their top edge but not their heights.
    ConfigDialog* dialog = app->configDialog();
    dialog->show();
    const QImage shot = dialog->grab().toImage();
    const int active = firstInkRow(shot, find<QWidget>(dialog, "Label1")->geometry());
    const int directory = firstInkRow(shot, find<QWidget>(dialog, "Label2")->geometry());
    ASSERT_GE(active, 0);
    EXPECT_EQ(directory, active);
}

} // namespace
} // namespace quillet
