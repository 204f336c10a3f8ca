#include "load/LoadSheet.h"

#include "GuiFixture.h"
#include "TypeName.h"
#include "shell/LoadSheetPrint.h"

#include <QDialog>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <cstdlib>

namespace quillet {
namespace {

// Every type in the aircraft list, each with an aircraft folder of its own.
class SheetGui : public GuiFixture {
protected:
    void SetUp() override
    {
        std::vector<std::string> types;
        for (const AircraftType& type : kAircraftTypes)
            types.emplace_back(type.type);
        startWith(types);
    }

    // The window's heavy preset ("mnuheav", or "mnuhev" on the EMB-120).
    static void heavyPreset(QWidget* window)
    {
        for (QAction* action : window->findChildren<QAction*>()) {
            if (action->objectName().startsWith(QStringLiteral("mnuhe")))
                return action->trigger();
        }
        ADD_FAILURE() << "no heavy preset";
    }
};

// The sheets written as PDF and read back with pdftotext, which CI installs; elsewhere a missing
// pdftotext skips the test.
class PdfSheet : public SheetGui {
protected:
    void SetUp() override
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty() && !std::getenv("CI"))
            GTEST_SKIP() << "pdftotext is not installed (Debian package poppler-utils)";
        SheetGui::SetUp();
    }

    // The window's load sheet as the PDF gives it, without white space: pdftotext closes up the narrow
    // columns ("0/2").
    std::string writtenSheet(LoadFormWindow* window)
    {
        const LoadSheet sheet = window->loadSheet();
        const std::filesystem::path file = dir.path() / sheet.fileName;
        EXPECT_TRUE(saveLoadSheetPdf(QString::fromStdString(file.string()), sheet, window->form()));
        QProcess run;
        run.start(QStringLiteral("pdftotext"), {QString::fromStdString(file.string()), QStringLiteral("-")});
        EXPECT_TRUE(run.waitForFinished(60000)) << "pdftotext is missing";
        return QString::fromUtf8(run.readAllStandardOutput())
            .remove(QRegularExpression(QStringLiteral("\\s")))
            .toStdString();
    }
};

class SheetOfEveryType : public PdfSheet, public ::testing::WithParamInterface<int> {};

// The figures themselves are the core's; the PDF must carry every one of them, for the load shown.
TEST_P(SheetOfEveryType, PdfCarriesEveryTextOfTheSheetOfTheLoadShown)
{
    LoadFormWindow* window = adjust(GetParam());
    ASSERT_NE(window, nullptr);
    heavyPreset(window);
    const std::string text = writtenSheet(window);

    const LoadState& state = app->session().state;
    const LoadSheet sheet = window->loadSheet();
    std::vector<std::string> expected = {"Load sheet " + sheet.type, "Quillet 2.0",
                                         poundsAndKilograms(state.emptyweight + state.loadweight)};
    for (const auto* rows : {&sheet.groups, &sheet.totals}) {
        for (const LoadSheetRow& row : *rows)
            expected.insert(expected.end(), {row.label, row.count, row.weight, row.limit, row.margin});
    }
    expected.insert(expected.end(), sheet.balanceLines.begin(), sheet.balanceLines.end());
    for (std::string figure : expected) {
        std::erase(figure, ' '); // as the text above
        EXPECT_NE(text.find(figure), std::string::npos) << figure << "\nin: " << text;
    }
}

INSTANTIATE_TEST_SUITE_P(Types, SheetOfEveryType,
                         ::testing::Range(0, static_cast<int>(kAircraftTypes.size())), [](const auto& info) {
                             return testNameOf(kAircraftTypes[static_cast<std::size_t>(info.param)].type);
                         });

TEST_F(SheetGui, FileMenuEndsWithTheLoadSheetAndBalanceToolTipsFollowTheLoad)
{
    LoadFormWindow* window = adjust(0);
    ASSERT_NE(window, nullptr);
    const QList<QAction*> items = find<QMenu>(window, "mnufile")->actions();
    ASSERT_GE(items.size(), 2);
    EXPECT_TRUE(items[items.size() - 2]->isSeparator());
    EXPECT_EQ(items.back()->text(), "Load &Sheet...");
    EXPECT_EQ(items.back()->shortcut(), QKeySequence(QStringLiteral("Ctrl+P")));

    items.back()->trigger();
    auto* preview = find<QDialog>(window, "LoadSheetPreview");
    ASSERT_NE(preview, nullptr);
    EXPECT_TRUE(preview->isVisible());
    EXPECT_EQ(find<QAction>(preview, "mnusheetpdf")->text(), "Save as PDF...");
    preview->close();

    // The balance pictures' tool tips and accessible descriptions follow the load.
    QWidget* along = find<QWidget>(window, "Picture4");
    QWidget* across = find<QWidget>(window, "Picture3");
    const QString before = along->toolTip();
    EXPECT_TRUE(before.startsWith(QStringLiteral("Centre of gravity "))) << before.toStdString();

    heavyPreset(window);
    const CentreOfGravity cg = centreOfGravity(app->session().state);
    EXPECT_NE(along->toolTip(), before);
    EXPECT_EQ(along->toolTip().toStdString(), alongText(cg));
    EXPECT_EQ(along->accessibleDescription(), along->toolTip());
    EXPECT_EQ(across->toolTip().toStdString(), acrossText(cg));
    EXPECT_EQ(across->accessibleDescription(), across->toolTip());
}

} // namespace
} // namespace quillet
