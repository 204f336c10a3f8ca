#include "GuiFixture.h"
#include "LayoutCheck.h"

#include <QAccessible>
#include <deque>
#include <filesystem>
#include <fstream>
#include <iterator>
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

// A line is a name (for the cabin and the photograph, a role and a name), numbers and a quoted text.
RegionalDesign readDesign(const std::string& file)
{
    RegionalDesign design;
    std::ifstream in(std::filesystem::path(QUILLET_TEST_DATA) / file);
    EXPECT_TRUE(in) << file;
    const auto keep = [&](std::string text) { return design.text.emplace_back(std::move(text)).c_str(); };
    std::string line;
    while (std::getline(in, line)) {
        const auto quote = line.find('"');
        const bool quoted = quote != std::string::npos;
        const std::string caption = quoted ? line.substr(quote + 1, line.rfind('"') - quote - 1) : "";
        std::istringstream words(line.substr(0, quote));
        std::string kind, name;
        words >> kind;
        if (kind == "cabin" || kind == "photo")
            words >> name;
        std::string rest((std::istreambuf_iterator<char>(words)), {});
        for (char& c : rest)
            c = std::isdigit(static_cast<unsigned char>(c)) ? c : ' ';
        std::istringstream numbers(rest);
        const std::vector<int> n{std::istream_iterator<int>(numbers), {}};
        Twips t; // a circle is given by its diameter and its corner
        if (n.size() == 3)
            t = {n[1], n[2], n[0], n[0]};
        else if (n.size() == 4)
            t = {n[0], n[1], n[2], n[3]};

        if (kind == "caption") {
            design.caption = caption;
        } else if (kind == "client") {
            design.clientWidth = n.at(0);
            design.clientHeight = n.at(1);
        } else if (kind == "Line1") {
            design.rule = {"Line1", n.at(0), n.at(1), n.at(2), n.at(3)};
        } else if (kind.starts_with("mnu")) {
            design.menus.push_back({keep(kind), keep(caption)});
        } else if (!name.empty()) {
            design.controls.push_back({keep(name), t});
            if (kind == "cabin")
                design.cabin = name;
        } else if (kind.starts_with("Shape1(") || kind.starts_with("location(")) {
            // A hot spot is a label without caption.
            design.stations.push_back(
                {keep(kind), t, kind.starts_with("location(") ? std::optional("") : std::nullopt});
        } else if (!kind.empty()) {
            Control control{keep(kind), t};
            if (quoted)
                control.caption = keep(caption);
            if (kind == "Label1")
                control.font = Font{"Arial", 9.75, true};
            design.controls.push_back(control);
        }
    }
    return design;
}

// Each form opened through the main window's "Adjust": its controls, menus and, on the cabin, the
// hot spot and marker of every station, a hot spot announced by its station's name. The CRJ-200ER's
// file holds what its table gives for the controls that its window places itself.
using RegionalLayout = GuiFixture;

TEST_F(RegionalLayout, EveryControlAndStationStandsWhereDesigned)
{
    const std::pair<const char*, const char*> forms[] = {{"Beech", "Beech 1900D"},
                                                         {"Emb120", "Empraer EMB_120"},
                                                         {"DHC8", "DHC-8-300"},
                                                         {"CRJ200", "CRJ-200ER"}};
    startWith({forms[0].second, forms[1].second, forms[2].second, forms[3].second});
    for (int i = 0; i < 4; ++i) {
        SCOPED_TRACE(forms[i].first);
        const RegionalDesign design = readDesign(std::string(forms[i].first) + ".layout");
        QMainWindow* window = adjust(i);
        ASSERT_NE(window, nullptr);
        EXPECT_EQ(shownTitle(window), QString::fromStdString(design.caption));
        const QWidget* client = window->centralWidget();
        EXPECT_EQ(client->size(), QSize(pixels(design.clientWidth), pixels(design.clientHeight)));
        expectControls(client, design.controls);
        expectLine(client, design.rule);
        expectMenus(window, design.menus);

        // The CRJ-200ER draws its seats on the cabin picture instead.
        const QWidget* cabin = find<QWidget>(window, design.cabin.c_str());
        expectControls(cabin, design.stations);
        const std::size_t stations = design.stations.size() / 2;
        for (std::size_t s = 0; s < stations; ++s) {
            auto* spot = cabin->findChild<QWidget*>(QStringLiteral("location(%1)").arg(s));
            ASSERT_NE(spot, nullptr);
            EXPECT_EQ(QAccessible::queryAccessibleInterface(spot)->text(QAccessible::Name),
                      QString::fromStdString(app->session().state.stationname[s]));
        }
        EXPECT_EQ(cabin->findChild<QWidget*>(QStringLiteral("location(%1)").arg(stations)), nullptr)
            << "a hot spot beyond the design's stations";
        window->close();
    }
}

} // namespace
} // namespace quillet
