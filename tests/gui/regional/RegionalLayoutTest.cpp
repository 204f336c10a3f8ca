#include "GuiFixture.h"
#include "shell/LoadFormWindow.h"
#include "LayoutCheck.h"

#include <QAccessible>

namespace quillet {
namespace {

using namespace layout;

// One load station on the cabin picture: its hot spot `location(i)` and its marker `Shape1(i)`, in
// twips inside the picture; a seat's marker is the bounding box of its circle.
struct Station {
    const char* name;
    Twips hotSpot;
    Twips marker;
};

// One seat-label load form, as designed.
struct RegionalDesign {
    const char* form;
    const char* type;   // as listed in the main window
    const char* folder; // its aircraft folder in the test's simulator
    const char* caption;
    int clientWidth;
    int clientHeight;
    const char* cabin;
    std::vector<Control> controls;
    Line rule;
    std::vector<MenuEntry> menus;
    const std::vector<Station>* stations;
};

const Font kHeadingFont{"Arial", 9.75, true};

const std::vector<Station> kBeechStations = {
    {"Avionics", {720, 360, 495, 735}, {720, 330, 495, 735}},
    {"Pilot", {1800, 840, 375, 375}, {1920, 960, 150, 150}},
    {"Co-pilot", {1800, 220, 375, 375}, {1920, 320, 150, 150}},
    {"Passenger 1A", {3000, 960, 240, 240}, {3030, 1000, 150, 150}},
    {"Passenger 1C", {3000, 240, 240, 240}, {3030, 290, 150, 150}},
    {"Passenger 2A", {3500, 960, 240, 240}, {3550, 1000, 150, 150}},
    {"Passenger 2C", {3500, 240, 240, 240}, {3550, 290, 150, 150}},
    {"Passenger 3A", {4000, 960, 240, 240}, {4060, 1000, 150, 150}},
    {"Passenger 3C", {4000, 240, 240, 240}, {4060, 290, 150, 150}},
    {"Passenger 4A", {4530, 960, 240, 240}, {4580, 1000, 150, 150}},
    {"Passenger 4C", {4530, 240, 240, 240}, {4580, 290, 150, 150}},
    {"Passenger 5A", {5040, 960, 240, 240}, {5070, 1000, 150, 150}},
    {"Passenger 5C", {5040, 240, 240, 240}, {5070, 290, 150, 150}},
    {"Passenger 6A", {5520, 960, 240, 240}, {5600, 1000, 150, 150}},
    {"Passenger 6C", {5535, 240, 240, 240}, {5600, 290, 150, 150}},
    {"Passenger 7A", {6045, 960, 240, 240}, {6100, 1000, 150, 150}},
    {"Passenger 7C", {6045, 240, 240, 240}, {6120, 285, 150, 150}},
    {"Passenger 8A", {6570, 960, 240, 240}, {6615, 1000, 150, 150}},
    {"Passenger 8C", {6570, 240, 240, 240}, {6615, 290, 150, 150}},
    {"Passenger 9A", {7080, 960, 240, 240}, {7130, 1000, 150, 150}},
    {"Passenger 9B", {7080, 600, 240, 240}, {7130, 630, 150, 150}},
    {"Passenger 9C", {7080, 240, 240, 240}, {7130, 290, 150, 150}},
    {"Cargo", {7680, 120, 855, 1215}, {7560, 150, 855, 1100}},
};

const std::vector<Station> kEmb120Stations = {
    {"Pilot", {1800, 720, 345, 345}, {1880, 825, 135, 135}},
    {"Co-pilot", {1800, 240, 345, 345}, {1880, 370, 135, 135}},
    {"Passenger 1B", {2880, 480, 315, 315}, {2890, 540, 135, 135}},
    {"Passenger 1C", {2880, 120, 315, 315}, {2890, 190, 135, 135}},
    {"Passenger 2A", {3360, 960, 345, 315}, {3390, 1015, 135, 135}},
    {"Passenger 2B", {3260, 480, 350, 315}, {3340, 540, 135, 135}},
    {"Passenger 2C", {3260, 120, 350, 315}, {3340, 195, 135, 135}},
    {"Passenger 3A", {3825, 960, 345, 315}, {3840, 1015, 135, 135}},
    {"Passenger 3B", {3720, 480, 345, 315}, {3765, 540, 135, 135}},
    {"Passenger 3C", {3720, 120, 345, 315}, {3765, 190, 135, 135}},
    {"Passenger 4A", {4305, 960, 345, 315}, {4270, 1015, 135, 135}},
    {"Passenger 4B", {4200, 480, 345, 315}, {4200, 540, 135, 135}},
    {"Passenger 4C", {4200, 120, 345, 315}, {4200, 190, 135, 135}},
    {"Passenger 5A", {4665, 960, 345, 315}, {4720, 1015, 135, 135}},
    {"Passenger 5B", {4560, 480, 345, 315}, {4655, 540, 135, 135}},
    {"Passenger 5C", {4560, 120, 345, 315}, {4655, 190, 135, 135}},
    {"Passenger 6A", {5145, 960, 345, 315}, {5175, 1015, 135, 135}},
    {"Passenger 6B", {5040, 480, 345, 315}, {5080, 540, 135, 135}},
    {"Passenger 6C", {5040, 120, 345, 315}, {5080, 190, 135, 135}},
    {"Passenger 7A", {5505, 960, 345, 315}, {5600, 1015, 135, 135}},
    {"Passenger 7B", {5400, 480, 345, 315}, {5520, 540, 135, 135}},
    {"Passenger 7C", {5400, 120, 345, 315}, {5520, 190, 135, 135}},
    {"Passenger 8A", {5985, 960, 345, 315}, {6045, 1015, 135, 135}},
    {"Passenger 8B", {6000, 480, 345, 315}, {6090, 540, 135, 135}},
    {"Passenger 8C", {6000, 120, 345, 315}, {6090, 190, 135, 135}},
    {"Passenger 9A", {6480, 960, 345, 315}, {6500, 1015, 135, 135}},
    {"Passenger 9B", {6495, 480, 345, 315}, {6530, 540, 135, 135}},
    {"Passenger 9C", {6495, 120, 345, 315}, {6530, 190, 135, 135}},
    {"Passenger 10A", {6960, 960, 345, 315}, {6930, 1015, 135, 135}},
    {"Passenger 10B", {6960, 720, 345, 315}, {7000, 760, 135, 135}},
    {"Passenger 10C", {6975, 480, 345, 315}, {7000, 480, 135, 135}},
    {"Passenger 10D", {6975, 120, 345, 315}, {7000, 190, 135, 135}},
    {"Cargo", {7440, 240, 795, 795}, {7490, 232, 735, 855}},
};

const std::vector<Station> kDhc8Stations = {
    {"Pilot", {1320, 720, 345, 345}, {1440, 815, 135, 135}},
    {"Co-pilot", {1320, 240, 345, 345}, {1440, 360, 135, 135}},
    {"Passenger 1A", {2640, 1080, 255, 255}, {2650, 1070, 135, 135}},
    {"Passenger 1B", {2640, 720, 255, 255}, {2650, 800, 135, 135}},
    {"Passenger 1C", {2640, 360, 225, 255}, {2650, 370, 135, 135}},
    {"Passenger 1D", {2640, 0, 255, 315}, {2650, 120, 135, 135}},
    {"Passenger 1E", {2160, 360, 345, 255}, {2280, 360, 135, 135}},
    {"Passenger 1F", {2160, 0, 345, 315}, {2280, 120, 135, 135}},
    {"Passenger 2A", {3000, 1050, 255, 255}, {3060, 1070, 135, 135}},
    {"Passenger 2B", {3000, 720, 255, 255}, {3060, 800, 135, 135}},
    {"Passenger 2C", {3000, 360, 225, 255}, {3060, 370, 135, 135}},
    {"Passenger 2D", {3000, 0, 255, 315}, {3060, 120, 135, 135}},
    {"Passenger 3A", {3455, 1050, 255, 255}, {3470, 1070, 135, 135}},
    {"Passenger 3B", {3455, 720, 255, 255}, {3470, 800, 135, 135}},
    {"Passenger 3C", {3455, 360, 225, 255}, {3470, 370, 135, 135}},
    {"Passenger 3D", {3455, 0, 255, 315}, {3470, 120, 135, 135}},
    {"Passenger 4A", {3840, 1050, 255, 255}, {3870, 1070, 135, 135}},
    {"Passenger 4B", {3840, 720, 255, 255}, {3870, 800, 135, 135}},
    {"Passenger 4C", {3840, 360, 225, 255}, {3870, 370, 135, 135}},
    {"Passenger 4D", {3840, 0, 255, 315}, {3870, 120, 135, 135}},
    {"Passenger 5A", {4200, 1050, 255, 255}, {4280, 1070, 135, 135}},
    {"Passenger 5B", {4200, 720, 255, 255}, {4280, 800, 135, 135}},
    {"Passenger 5C", {4200, 360, 225, 255}, {4280, 370, 135, 135}},
    {"Passenger 5D", {4200, 0, 255, 315}, {4280, 120, 135, 135}},
    {"Passenger 6A", {4680, 1050, 255, 255}, {4690, 1070, 135, 135}},
    {"Passenger 6B", {4680, 720, 255, 255}, {4690, 800, 135, 135}},
    {"Passenger 6C", {4680, 360, 225, 255}, {4690, 370, 135, 135}},
    {"Passenger 6D", {4680, 0, 255, 315}, {4690, 120, 135, 135}},
    {"Passenger 7A", {5040, 1050, 255, 255}, {5100, 1070, 135, 135}},
    {"Passenger 7B", {5040, 720, 255, 255}, {5100, 800, 135, 135}},
    {"Passenger 7C", {5040, 360, 225, 255}, {5100, 370, 135, 135}},
    {"Passenger 7D", {5040, 0, 255, 315}, {5100, 120, 135, 135}},
    {"Passenger 8A", {5500, 1050, 255, 255}, {5500, 1070, 135, 135}},
    {"Passenger 8B", {5500, 720, 255, 255}, {5500, 800, 135, 135}},
    {"Passenger 8C", {5500, 360, 225, 255}, {5500, 370, 135, 135}},
    {"Passenger 8D", {5500, 0, 255, 315}, {5500, 120, 135, 135}},
    {"Passenger 9A", {5880, 1050, 255, 255}, {5910, 1070, 135, 135}},
    {"Passenger 9B", {5880, 720, 255, 255}, {5910, 800, 135, 135}},
    {"Passenger 9C", {5880, 360, 225, 255}, {5910, 370, 135, 135}},
    {"Passenger 9D", {5880, 0, 255, 315}, {5910, 120, 135, 135}},
    {"Passenger 10A", {6360, 1050, 255, 255}, {6385, 1070, 135, 135}},
    {"Passenger 10B", {6360, 720, 255, 255}, {6385, 800, 135, 135}},
    {"Passenger 10C", {6360, 360, 225, 255}, {6385, 370, 135, 135}},
    {"Passenger 10D", {6360, 0, 255, 315}, {6385, 120, 135, 135}},
    {"Passenger 11A", {6720, 1050, 255, 255}, {6800, 1070, 135, 135}},
    {"Passenger 11B", {6720, 720, 255, 255}, {6800, 800, 135, 135}},
    {"Passenger 11C", {6720, 360, 225, 255}, {6800, 370, 135, 135}},
    {"Passenger 11D", {6720, 0, 255, 315}, {6800, 120, 135, 135}},
    {"Passenger 12A", {7170, 1050, 255, 255}, {7180, 1070, 135, 135}},
    {"Passenger 12B", {7170, 720, 255, 255}, {7180, 800, 135, 135}},
    {"Passenger 12C", {7170, 360, 225, 255}, {7180, 370, 135, 135}},
    {"Passenger 12D", {7170, 0, 255, 315}, {7180, 120, 135, 135}},
    {"Cargo", {7800, 0, 1035, 1275}, {7845, 105, 855, 1095}},
};
const std::vector<RegionalDesign> kDesigns = {
    {"Beech", "Beech 1900D", "beech", "Quillet - Beech 1900D", 9585, 3675, "Picture1",
     {
         {"Picture1", {120, 0, 9315, 1400}},
         {"Picture2", {4320, 1560, 2460, 1755}},
         {"Picture4", {7080, 2280, 2295, 375}},
         {"Label2", {7080, 2625, 2295, 255}, "Longitudinal Balance"},
         {"Picture3", {7380, 2880, 1695, 375}},
         {"Label3", {7080, 3240, 2295, 255}, "Lateral Balance"},
         {"Label1", {240, 1440, 3855, 375}, "Demonstrated configuration", kHeadingFont},
         {"lblbow", {480, 1920, 3735, 255}},
         {"lblpax", {480, 2160, 3735, 255}},
         {"lblmf", {480, 2400, 3735, 255}},
         {"lbltot", {480, 2640, 3735, 255}},
         {"warning", {480, 2880, 3735, 735}},
         {"lblpass", {7080, 1560, 2055, 255}},
         {"lblmaxtow", {7080, 1800, 2295, 375}},
         {"lblmaxfuel", {7080, 2040, 2535, 375}},
     },
     {"Line1", 4200, 2625, 360, 2625},
     {{"mnufile", "&File"},
      {"mnuload", "&Re-Load Existing Config"},
      {"mnusave", "&Save Configuration"},
      {"mnuauto", "&Auto Load"},
      {"mnulight", "&Light Load"},
      {"mnumed", "&Meduim Load"},
      {"mnuheav", "&Heavy Load"}},
     &kBeechStations},
    {"Emb120", "Empraer EMB_120", "emb120", "Quillet - Embraer EMB-120", 9915, 3675, "Picture2",
     {
         {"Picture2", {120, 0, 9375, 1300}},
         {"Picture1", {4200, 1560, 2460, 1710}},
         {"Picture4", {7320, 2280, 2295, 375}},
         {"Label2", {7320, 2625, 2295, 255}, "Longitudinal Balance"},
         {"Picture3", {7620, 2880, 1695, 375}},
         {"Label3", {7320, 3240, 2295, 255}, "Lateral Balance"},
         {"Label1", {120, 1440, 3855, 375}, "Demonstrated configuration", kHeadingFont},
         {"lblbow", {240, 1800, 3735, 255}},
         {"lblpax", {240, 2040, 3735, 255}},
         {"lblmf", {240, 2280, 3735, 255}},
         {"lbltot", {240, 2520, 3735, 255}},
         {"warning", {240, 2880, 3735, 255}},
         {"lblpass", {6960, 1440, 2055, 255}},
         {"lblmaxtow", {6960, 1680, 2295, 375}},
         {"lblmaxfuel", {6960, 1920, 2535, 375}},
     },
     {"Line1", 3960, 2505, 120, 2505},
     {{"mnufile", "&File"},
      {"mnuload", "&Relaod configuration"},
      {"mnusave", "&Save Configuration"},
      {"mnuauto", "&Auto Load"},
      {"mnulight", "&Light Load"},
      {"mnumed", "&Medium Load"},
      {"mnuhev", "&Heavey Load"}},
     &kEmb120Stations},
    {"DHC8", "DHC-8-300", "dhc8", "Quillet - Bombardier DHC-8-300", 9885, 3645, "Picture2",
     {
         {"Picture2", {240, 0, 9375, 1300}},
         {"Picture1", {4200, 1680, 2460, 1710}},
         {"Picture4", {7200, 2160, 2295, 375}},
         {"Label2", {7200, 2505, 2295, 255}, "Longitudinal Balance"},
         {"Picture3", {7500, 2760, 1695, 375}},
         {"Label3", {7200, 3120, 2295, 255}, "Lateral Balance"},
         {"Label1", {120, 1680, 3855, 375}, "Demonstrated configuration", kHeadingFont},
         {"lblbow", {240, 2040, 3735, 255}},
         {"lblpax", {240, 2280, 3735, 255}},
         {"lblmf", {240, 2520, 3735, 255}},
         {"lbltot", {240, 2760, 3735, 255}},
         {"warning", {240, 3120, 3735, 255}},
         {"lblpass", {6960, 1440, 2055, 255}},
         {"lblmaxtow", {6960, 1680, 2295, 375}},
         {"lblmaxfuel", {6960, 1920, 2535, 375}},
     },
     {"Line1", 3960, 2745, 120, 2745},
     {{"mnufile", "&File"},
      {"mnuload", "&Reload Configuration"},
      {"mnusave", "&Save Configuration"},
      {"mnuauto", "&AutoLoad"},
      {"mnulight", "&Light Load"},
      {"mnumed", "&Medium Load"},
      {"mnuheav", "&Heavy Load"}},
     &kDhc8Stations},
};

// The three forms, each opened through the main window's "Adjust".
class RegionalLayout : public GuiFixture {
protected:
    void SetUp() override
    {
        dir.makeSimulator();
        std::vector<std::string> entries;
        for (const RegionalDesign& design : kDesigns) {
            dir.makeAircraft(design.folder);
            entries.push_back(std::string(design.type) + "," + design.folder);
        }
        dir.writeIni(dir.sim(), entries);
        start();
    }

    QWidget* open(std::size_t index)
    {
        app->handle([&] {
            app->form1().Combo1.setListIndex(static_cast<int>(index));
            app->form1().Command2_Click();
        });
        QWidget* window = app->window(kDesigns[index].form);
        EXPECT_NE(window, nullptr) << kDesigns[index].form;
        return window;
    }
};

TEST_F(RegionalLayout, EveryControlStandsWhereDesigned)
{
    for (std::size_t i = 0; i < kDesigns.size(); ++i) {
        const RegionalDesign& design = kDesigns[i];
        SCOPED_TRACE(design.form);
        QWidget* window = open(i);
        ASSERT_NE(window, nullptr);
        EXPECT_EQ(window->windowTitle(), QString::fromLatin1(design.caption));
        const QWidget* client = static_cast<QMainWindow*>(window)->centralWidget();
        EXPECT_EQ(client->size(), QSize(pixels(design.clientWidth), pixels(design.clientHeight)));
        expectControls(client, design.controls);
        expectLine(client, design.rule);
        expectMenus(window, design.menus);
        window->close();
    }
}

TEST_F(RegionalLayout, EveryStationHasItsHotSpotAndMarkerOnTheCabin)
{
    for (std::size_t i = 0; i < kDesigns.size(); ++i) {
        const RegionalDesign& design = kDesigns[i];
        SCOPED_TRACE(design.form);
        QWidget* window = open(i);
        ASSERT_NE(window, nullptr);
        const QWidget* cabin = find<QWidget>(window, design.cabin);
        ASSERT_NE(cabin, nullptr);
        const std::vector<Station>& stations = *design.stations;
        for (std::size_t s = 0; s < stations.size(); ++s) {
            const std::string spot = "location(" + std::to_string(s) + ")";
            const std::string marker = "Shape1(" + std::to_string(s) + ")";
            // A hot spot is a label without caption.
            expectControls(cabin, {{spot.c_str(), stations[s].hotSpot, ""}, {marker.c_str(), stations[s].marker}});
            // Screen readers announce it by its station's name.
            auto* spotWidget = cabin->findChild<QWidget*>(QString::fromStdString(spot));
            ASSERT_NE(spotWidget, nullptr);
            EXPECT_EQ(QAccessible::queryAccessibleInterface(spotWidget)->text(QAccessible::Name),
                      QString::fromLatin1(stations[s].name));
        }
        EXPECT_EQ(cabin->findChild<QWidget*>(QStringLiteral("location(%1)").arg(stations.size())), nullptr)
            << "a hot spot beyond the design's stations";
        window->close();
    }
}

} // namespace
} // namespace quillet
