#include "GuiFixture.h"

#include "platform/PictureBox.h"
#include "regional/RegionalWindow.h"

#include <QAction>
#include <QPushButton>
#include <QTest>

namespace quillet {
namespace {

class RegionalWindowGui : public GuiFixture {
protected:
    void SetUp() override
    {
        dir.makeSimulator();
        dir.makeAircraft("beech", "aircraft.cfg", "[fltsim.0]\r\ntitle=Beech\r\n\r\n[WEIGHT_AND_BALANCE]\r\nempty_weight = 10615\r\n"
                              "\r\n[flight_tuning]\r\ncruise_lift_scalar = 1.0\r\n");
        dir.writeIni(dir.sim(), {"Beech 1900D,beech"});
        dir.write("beech.gif", TempDir::readFile(std::filesystem::path(QUILLET_PICTURES) / "beech.gif"));
    }

    QWidget* beechWindow() const { return app->window("Beech"); }
};

TEST_F(RegionalWindowGui, LoadASeatSaveAndClose)
{
    start();
    EXPECT_EQ(find<QComboBox>(main(), "Combo1")->currentText(), "Beech 1900D");
    QTest::mouseClick(find<QPushButton>(main(), "Command2"), Qt::LeftButton);
    ASSERT_NE(beechWindow(), nullptr);
    EXPECT_TRUE(beechWindow()->isVisible());
    EXPECT_FALSE(main()->isVisible());
    EXPECT_EQ(shownTitle(beechWindow()), "Quillet - Beech 1900D");

    QWidget* seat = find<QWidget>(beechWindow(), "location(3)");
    EXPECT_EQ(seat->toolTip(), "Empty");
    EXPECT_FALSE(find<QWidget>(beechWindow(), "Shape1(3)")->isVisible());
    prompt.answer("170");
    QTest::mouseClick(seat, Qt::LeftButton);
    ASSERT_EQ(prompt.asked().size(), 1u);
    EXPECT_EQ(prompt.asked()[0].prompt, "Passenger 1A weight in lbs");
    EXPECT_EQ(prompt.asked()[0].title, "Pax Details");
    EXPECT_EQ(prompt.asked()[0].defaultText, "170");
    EXPECT_EQ(seat->toolTip(), "Passenger 1A 170 lb.");
    EXPECT_TRUE(find<QWidget>(beechWindow(), "Shape1(3)")->isVisible());
    EXPECT_EQ(find<QLabel>(beechWindow(), "lblpax")->text(), "PAX weight =  170 lb.");
    EXPECT_EQ(find<QLabel>(beechWindow(), "lblpass")->text(), "Passengers  1 / 19");

    find<QAction>(beechWindow(), "mnusave")->trigger();
    beechWindow()->close();
    QApplication::processEvents();

    const std::string cfg = dir.read("sim/aircraft/beech/aircraft.cfg");
    EXPECT_NE(cfg.find("\r\nstation_load.3 = 170, 8.0, -2.0, 0.0 // Passenger 1A\r\n"), std::string::npos) << cfg;
    EXPECT_NE(cfg.find("\r\n[flight_tuning]\r\ncruise_lift_scalar = 1.0\r\n"), std::string::npos);
    EXPECT_EQ(dir.read("sim/aircraft/beech/aircraft.cfg.bak").substr(0, 20), "[fltsim.0]\r\ntitle=Be");

    EXPECT_TRUE(main()->isVisible());
    EXPECT_FALSE(beechWindow()->isVisible());
    EXPECT_EQ(text("lblbow"), "Basic Operating weight = 10615 lb.");
    EXPECT_EQ(text("lblpax"), "PAX weight =  170 lb.");
    EXPECT_EQ(text("lblmf"), "Maximum Allowable Fuel weight =  3578 lb.");
    EXPECT_EQ(text("lbltot"), "Total weight = 14363 lb.");
    EXPECT_TRUE(told.empty()) << told.front();
}

TEST_F(RegionalWindowGui, UnsavedChangesAreGoneWhenTheFormCloses)
{
    start();
    QTest::mouseClick(find<QPushButton>(main(), "Command2"), Qt::LeftButton);
    find<QAction>(beechWindow(), "mnuheav")->trigger();
    EXPECT_NE(find<QLabel>(beechWindow(), "lblpax")->text(), "PAX weight =  0 lb.");
    beechWindow()->close();
    QApplication::processEvents();
    EXPECT_EQ(text("lblpax"), "PAX weight =  0 lb.");
}

TEST_F(RegionalWindowGui, PhotographAndCabinAreShownAndAMissingPhotoLeavesABlankBox)
{
    start();
    QTest::mouseClick(find<QPushButton>(main(), "Command2"), Qt::LeftButton);
    EXPECT_FALSE(find<PictureBox>(beechWindow(), "Picture2")->picture().isNull());
    EXPECT_NE(find<PictureBox>(beechWindow(), "Picture1")->canvas(), nullptr);
    EXPECT_EQ(find<QWidget>(beechWindow(), "Picture1")->geometry(), QRect(8, 0, 621, 93));
    beechWindow()->close();

    std::filesystem::remove(dir.path() / "beech.gif");
    dir.write("emb120.gif", "not a picture");
    dir.makeAircraft("emb");
    dir.writeIni(dir.sim(), {"Empraer EMB_120,emb", "Beech 1900D,beech"});
    told.clear();
    app->handle([this] { app->form1().mnuconfigair_Click(); });
    QTest::mouseClick(find<QPushButton>(main(), "Command2"), Qt::LeftButton);
    QWidget* emb = app->window("Emb120");
    ASSERT_NE(emb, nullptr);
    EXPECT_TRUE(find<PictureBox>(emb, "Picture1")->picture().isNull());
    ASSERT_FALSE(told.empty());
    EXPECT_NE(told[0].find("emb120.gif\" could not be shown"), std::string::npos) << told[0];

    prompt.answer("200");
    QTest::mouseClick(find<QWidget>(emb, "location(32)"), Qt::LeftButton);
    EXPECT_EQ(find<QWidget>(emb, "location(32)")->toolTip(), "Cargo 200 lb.");
}

} // namespace
} // namespace quillet
