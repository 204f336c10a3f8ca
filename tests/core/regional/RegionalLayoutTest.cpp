// What each regional form places where: every control's rectangle in twips, its fixed text and the
// menu captions, written out line by line and compared with a file under tests/data that was checked
// by hand against the type's published tables.

#include "RegionalRig.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace quillet {
namespace {

std::string edges(const TwipsRect& r)
{
    std::ostringstream out;
    out << r.left << ", " << r.top << ", " << r.width << ", " << r.height;
    return out.str();
}

std::string quoted(std::string_view text)
{
    return "\"" + std::string(text) + "\"";
}

std::string describe(const RegionalForm& form)
{
    const RegionalType& type = form.type();
    const RegionalLayout& l = type.layout;
    const SummaryLayout& summary = l.summary;
    std::ostringstream out;
    out << "caption " << quoted(type.caption) << "\n";
    out << "client " << l.clientWidth << " x " << l.clientHeight << "\n";
    out << "cabin " << l.cabinName << " " << edges(l.cabin) << "\n";
    out << "photo " << l.photoName << " " << edges(l.photo) << " " << quoted(l.photoFile) << "\n";
    out << "Picture4 " << edges(summary.Picture4) << "\n";
    out << "Label2 " << edges(summary.Label2) << " " << quoted(kLabel2Text) << "\n";
    out << "Picture3 " << edges(summary.Picture3) << "\n";
    out << "Label3 " << edges(summary.Label3) << " " << quoted(kLabel3Text) << "\n";
    out << "Label1 " << edges(summary.Label1) << " " << quoted(kLabel1Text) << "\n";
    const std::pair<const char*, const TwipsRect*> labels[] = {
        {"lblbow", &summary.lblbow},       {"lblpax", &summary.lblpax},         {"lblmf", &summary.lblmf},
        {"lbltot", &summary.lbltot},       {"warning", &summary.warning},       {"lblpass", &summary.lblpass},
        {"lblmaxtow", &summary.lblmaxtow}, {"lblmaxfuel", &summary.lblmaxfuel},
    };
    for (const auto& [name, rect] : labels)
        out << name << " " << edges(*rect) << "\n";
    const TwipsLine& line = summary.Line1;
    out << "Line1 (" << line.x1 << ", " << line.y1 << ") to (" << line.x2 << ", " << line.y2 << ")\n";
    const RegionalMenus& m = type.menus;
    for (const MenuItem* item :
         {&m.mnufile, &m.mnuload, &m.mnusave, &m.mnuauto, &m.mnulight, &m.mnumed, &m.mnuheav})
        out << item->name << " " << quoted(item->caption) << "\n";
    for (std::size_t i = 0; i < form.location.size(); ++i) {
        out << "location(" << i << ") " << edges(form.location[i].rect) << "\n";
        const Marker& marker = form.Shape1[i];
        out << "Shape1(" << i << ") ";
        if (marker.kind == MarkerKind::Circle) {
            EXPECT_EQ(marker.rect.width, marker.rect.height) << "Shape1(" << i << ") is a circle";
            out << "circle " << marker.rect.width << " at " << marker.rect.left << ", " << marker.rect.top
                << "\n";
        } else {
            out << "hatched box " << edges(marker.rect) << "\n";
        }
    }
    return out.str();
}

class RegionalLayout : public ::testing::TestWithParam<const RegionalType*> {};

TEST_P(RegionalLayout, EveryControlStandsWhereTheTableSays)
{
    RegionalRig rig;
    const RegionalForm& form = rig.open(*GetParam());
    const std::string golden =
        std::string(QUILLET_TEST_DATA) + "/" + std::string(GetParam()->form) + ".layout";
    EXPECT_EQ(describe(form), TempDir::readFile(golden));
}

INSTANTIATE_TEST_SUITE_P(EveryForm, RegionalLayout, ::testing::ValuesIn(regionalTypes()),
                         [](const auto& info) { return std::string(info.param->form); });

} // namespace
} // namespace quillet
