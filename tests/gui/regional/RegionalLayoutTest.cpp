#include "GuiFixture.h"
#include "LayoutCheck.h"

#include <QAccessible>

namespace quillet {
namespace {

using namespace layout;

using RegionalLayout = GuiFixture;

// Each form opened through the main window's "Adjust": its controls, menus and, on the cabin, the
// hot spot and marker of every station, a hot spot announced by its station's name. The layout files
// are the ones the core tests compare the forms' own tables with; the CRJ-200ER's holds the controls
// that its window places itself (it draws its seats on the cabin picture instead).
TEST_F(RegionalLayout, EveryControlAndStationStandsWhereDesigned)
{
    const std::pair<const char*, const char*> forms[] = {{"Beech", "Beech 1900D"},
                                                         {"Emb120", "Empraer EMB_120"},
                                                         {"DHC8", "DHC-8-300"},
                                                         {"CRJ200", "CRJ-200ER"}};
    startWith({forms[0].second, forms[1].second, forms[2].second, forms[3].second});
    for (int i = 0; i < 4; ++i) {
        SCOPED_TRACE(forms[i].first);
        Design design = readDesign(std::string(forms[i].first) + ".layout");
        design.setFont("Label1", Font{"Arial", 9.75, true});
        QMainWindow* window = adjust(i);
        ASSERT_NE(window, nullptr);
        expectDesign(window, window->centralWidget(), design);

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
