#include "GuiFixture.h"

namespace quillet {
namespace {

class RegionalWindowGui : public GuiFixture {
protected:
    void SetUp() override
    {
        startWith({"Beech 1900D"},
                  "[fltsim.0]\r\ntitle=Beech\r\n\r\n[WEIGHT_AND_BALANCE]\r\nempty_weight = 10615\r\n");
    }
};

TEST_F(RegionalWindowGui, LoadASeatSaveAndClose)
{
    EXPECT_EQ(find<QComboBox>(main(), "Combo1")->currentText(), "Beech 1900D");
    QWidget* beech = adjust();
    ASSERT_NE(beech, nullptr);
    EXPECT_TRUE(beech->isVisible());
    EXPECT_FALSE(main()->isVisible());
    EXPECT_EQ(shownTitle(beech), "Quillet - Beech 1900D");
    EXPECT_FALSE(find<PictureBox>(beech, "Picture2")->picture().isNull());
    EXPECT_NE(find<PictureBox>(beech, "Picture1")->canvas(), nullptr) << "the cabin is drawn";

    QWidget* seat = find<QWidget>(beech, "location(3)");
    EXPECT_FALSE(find<QWidget>(beech, "Shape1(3)")->isVisible());
    prompt.answer("170");
    QTest::mouseClick(seat, Qt::LeftButton);
    ASSERT_EQ(prompt.asked().size(), 1u);
    EXPECT_EQ(prompt.asked()[0].prompt, "Passenger 1A weight in lbs");
    EXPECT_TRUE(find<QWidget>(beech, "Shape1(3)")->isVisible());
    EXPECT_EQ(text("lblpax", beech), "PAX weight =  170 lb.");
    EXPECT_EQ(text("lblpass", beech), "Passengers  1 / 19");

    find<QAction>(beech, "mnusave")->trigger();
    beech->close();
    QApplication::processEvents();

    const std::string cfg = dir.read("sim/aircraft/plane0/aircraft.cfg");
    EXPECT_NE(cfg.find("\r\nstation_load.3 = 170, 8.0, -2.0, 0.0 // Passenger 1A\r\n"), std::string::npos)
        << cfg;

    EXPECT_TRUE(main()->isVisible());
    EXPECT_FALSE(beech->isVisible());
    EXPECT_EQ(text("lbltot"), "Total weight = 14363 lb.");
    EXPECT_TRUE(told.empty()) << told.front();
}

// A picture that cannot be read leaves the photograph's box blank, and says so.
TEST_F(RegionalWindowGui, AnUnreadablePhotoLeavesABlankBox)
{
    dir.write("emb120.gif", "not a picture");
    dir.makeAircraft("emb");
    dir.writeIni(dir.sim(), {"Empraer EMB_120,emb"});
    told.clear();
    app->handle([this] { app->form1().mnuconfigair_Click(); });
    QWidget* emb = adjust();
    ASSERT_NE(emb, nullptr);
    EXPECT_TRUE(find<PictureBox>(emb, "Picture1")->picture().isNull());
    ASSERT_FALSE(told.empty());
    EXPECT_NE(told[0].find("emb120.gif\" could not be shown"), std::string::npos) << told[0];
}

} // namespace
} // namespace quillet
