#include "GuiFixture.h"
#include "LayoutCheck.h"
#include "shell/ConfigDialog.h"

#include <QGroupBox>
#include <QImage>

namespace quillet {
namespace {

using namespace layout;

const Font kTitleFont{"Times New Roman", 27.75, true};
const Font kArial{"Arial", 9.75, false};

// form1, in its client area of 8460 × 3510 twips.
const std::vector<Control> kMainWindow = {
    {"Label4", {3240, 360, 4455, 735}, "Quillet Manager", kTitleFont},
    {"Label3", {240, 1440, 1335, 255}, "Select Aircraft"},
    {"Combo1", {480, 1680, 2295, 315}, "Use configure to set aircraft directories"},
    {"Command2", {3000, 1680, 615, 255}, "Adjust"},
    {"PicDHC", {3960, 1560, 2460, 1755}},
    {"Converter", {6720, 1680, 1575, 1095}, "Converter"},
    {"lblbow", {480, 2400, 3300, 255}},
    {"lblpax", {480, 2640, 3300, 255}},
    {"lblmf", {120, 2880, 3660, 255}},
    {"lbltot", {480, 3120, 3300, 255}},
};
const Line kMainRule{"Line1", 3600, 3120, 600, 3120};
const std::vector<MenuEntry> kMainMenus = {
    {"mnuconfigure", "&Configure"}, {"mnuconfigair", "&Aircraft"},  {"mnuabout", "&About"},
    {"munver", "&Version"},         {"mnucopyright", "&Copyright"},
};

// Inside the frame "Converter", before anything is typed.
const std::vector<Control> kConverter = {
    {"Textkg", {240, 240, 855, 285}, "0"},   {"Labelkg", {240, 280, 855, 255}, "0"},
    {"Label1", {1080, 280, 375, 255}, "kg"}, {"TextLB", {240, 600, 855, 285}, "0"},
    {"Labellb", {240, 640, 855, 255}, "0"},  {"Label2", {1080, 640, 375, 255}, "lb"},
};

// Form4, in its client area of 5370 × 2415 twips, with an empty aircraft menu.
const std::vector<Control> kConfigDialog = {
    {"Label1", {120, 0, 1695, 255}, "Active Aircraft", kArial},
    {"Label2", {2640, 0, 1935, 375}, "Directory", kArial},
    {"Combo1", {720, 360, 1935, 315}, "Active Aircraft menu"},
    {"Valid_dir", {2760, 360, 1695, 285}},
    {"Label4", {0, 720, 1695, 255}, "Avaliable Aircraft", kArial},
    {"Combo2", {720, 1080, 1935, 315}, "Avaliable Aircraft"},
    {"invalid_dir", {2760, 1080, 1695, 285}, "aircraftdir"},
    {"Command1", {4560, 1080, 495, 255}, "Add"},
    {"Label3", {240, 1560, 4095, 255}, "Current Directory of Flight Simulator"},
    {"simdir", {360, 1920, 4095, 375}},
    {"Check2", {4560, 2040, 135, 195}, ""},
};

class ShellLayout : public GuiFixture {
protected:
    void SetUp() override
    {
        dir.writeIni(dir.sim(), {});
        start();
    }
};

TEST_F(ShellLayout, MainWindowConverterAndConfigurationDialogControlsStandWhereDesigned)
{
    QWidget* client = main()->centralWidget();
    EXPECT_EQ(client->size(), QSize(pixels(8460), pixels(3510)));
    expectControls(client, kMainWindow);
    expectLine(client, kMainRule);
    expectMenus(main(), kMainMenus);
    expectControls(find<QGroupBox>(main(), "Converter"), kConverter);

    ConfigDialog* dialog = app->configDialog();
    EXPECT_EQ(dialog->size(), QSize(pixels(5370), pixels(2415)));
    // The check box's indicator is larger than its designed box in this style: it grows from its
    // corner so that it shows whole.
    expectControls(dialog, kConfigDialog, {"Check2"});
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
