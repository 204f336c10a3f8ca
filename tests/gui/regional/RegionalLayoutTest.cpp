#include "GuiFixture.h"
#include "LayoutCheck.h"
#include "shell/LoadFormWindow.h"

#include <QAccessible>
#include <deque>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>

namespace quillet {
namespace {

using namespace layout;

// One regional form as designed: read from its layout file under tests/data, which was checked by
// hand against the type's published tables (the core tests compare the form's own tables with it).
struct RegionalDesign {
    std::string caption;
    int clientWidth = 0;
    int clientHeight = 0;
    std::string cabin;
    std::vector<Control> controls;
    Line rule{};
    std::vector<MenuEntry> menus;
    std::vector<Control> stations; // hot spot `location(i)` and marker `Shape1(i)` of each station
    std::deque<std::string> text;  // what the entries above point into
};

const Font kHeadingFont{"Arial", 9.75, true};

// The text between the first pair of double quotes, if there is one.
std::optional<std::string> quotedIn(const std::string& line)
{
    const auto open = line.find('"');
    if (open == std::string::npos)
        return std::nullopt;
    return line.substr(open + 1, line.rfind('"') - open - 1);
}

RegionalDesign readDesign(const std::string& file)
{
    RegionalDesign design;
    std::ifstream in(std::filesystem::path(QUILLET_TEST_DATA) / file);
    EXPECT_TRUE(in) << file;
    auto keep = [&](std::string text) { return design.text.emplace_back(std::move(text)).c_str(); };
    std::string line;
    while (std::getline(in, line)) {
        std::istringstream words(line);
        std::string name;
        words >> name;
        const std::optional<std::string> caption = quotedIn(line);
        Twips t;
        char comma = 0;
        if (name == "caption") {
            design.caption = caption.value_or("");
        } else if (name == "client") {
            char times = 0;
            words >> design.clientWidth >> times >> design.clientHeight;
        } else if (name == "cabin" || name == "photo") {
            words >> name >> t.left >> comma >> t.top >> comma >> t.width >> comma >> t.height;
            if (line.starts_with("cabin"))
                design.cabin = name;
            design.controls.push_back({keep(name), t});
        } else if (name == "Line1") {
            char paren = 0;
            std::string to;
            design.rule.name = "Line1";
            words >> paren >> design.rule.x1 >> comma >> design.rule.y1 >> paren >> to >> paren >>
                design.rule.x2 >> comma >> design.rule.y2;
        } else if (name.starts_with("mnu")) {
            design.menus.push_back({keep(name), keep(caption.value_or(""))});
        } else if (name.starts_with("Shape1(")) {
            std::string shape;
            words >> shape;
            if (shape == "circle") {
                std::string at;
                words >> t.width >> at >> t.left >> comma >> t.top;
                t.height = t.width;
            } else {
                words >> shape >> t.left >> comma >> t.top >> comma >> t.width >> comma >>
                    t.height; // hatched box
            }
            design.stations.push_back({keep(name), t});
        } else if (!name.empty()) {
            words >> t.left >> comma >> t.top >> comma >> t.width >> comma >> t.height;
            const bool hotSpot = name.starts_with("location(");
            Control control{keep(name), t};
            if (hotSpot)
                control.caption = ""; // a hot spot is a label without caption
            else if (caption)
                control.caption = keep(*caption);
            if (name == "Label1")
                control.font = kHeadingFont;
            (hotSpot ? design.stations : design.controls).push_back(control);
        }
    }
    return design;
}

// Each form with the type it serves and its aircraft folder in the test's simulator.
struct RegionalForm {
    const char* form;
    const char* type;
    const char* folder;
};
const RegionalForm kForms[] = {
    {"Beech", "Beech 1900D", "beech"},
    {"Emb120", "Empraer EMB_120", "emb120"},
    {"DHC8", "DHC-8-300", "dhc8"},
};

// The three forms, each opened through the main window's "Adjust".
class RegionalLayout : public GuiFixture {
protected:
    void SetUp() override
    {
        dir.makeSimulator();
        std::vector<std::string> entries;
        for (const RegionalForm& form : kForms) {
            dir.makeAircraft(form.folder);
            entries.push_back(std::string(form.type) + "," + form.folder);
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
        QWidget* window = app->window(kForms[index].form);
        EXPECT_NE(window, nullptr) << kForms[index].form;
        return window;
    }
};

TEST_F(RegionalLayout, EveryControlStandsWhereDesigned)
{
    for (std::size_t i = 0; i < std::size(kForms); ++i) {
        SCOPED_TRACE(kForms[i].form);
        const RegionalDesign design = readDesign(std::string(kForms[i].form) + ".layout");
        QWidget* window = open(i);
        ASSERT_NE(window, nullptr);
        EXPECT_EQ(shownTitle(window), QString::fromStdString(design.caption));
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
    for (std::size_t i = 0; i < std::size(kForms); ++i) {
        SCOPED_TRACE(kForms[i].form);
        const RegionalDesign design = readDesign(std::string(kForms[i].form) + ".layout");
        QWidget* window = open(i);
        ASSERT_NE(window, nullptr);
        const QWidget* cabin = find<QWidget>(window, design.cabin.c_str());
        ASSERT_NE(cabin, nullptr);
        ASSERT_FALSE(design.stations.empty());
        expectControls(cabin, design.stations);
        const std::size_t stations = design.stations.size() / 2;
        const LoadState& state = app->session().state;
        for (std::size_t s = 0; s < stations; ++s) {
            // Screen readers announce a hot spot by its station's name.
            auto* spot = cabin->findChild<QWidget*>(QStringLiteral("location(%1)").arg(s));
            ASSERT_NE(spot, nullptr);
            EXPECT_EQ(QAccessible::queryAccessibleInterface(spot)->text(QAccessible::Name),
                      QString::fromStdString(state.stationname[s]));
        }
        EXPECT_EQ(cabin->findChild<QWidget*>(QStringLiteral("location(%1)").arg(stations)), nullptr)
            << "a hot spot beyond the design's stations";
        window->close();
    }
}

} // namespace
} // namespace quillet
