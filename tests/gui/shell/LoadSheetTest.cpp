#include "load/LoadSheet.h"

#include "GuiFixture.h"
#include "TypeName.h"
#include "load/Balance.h"
#include "shell/AircraftTypes.h"
#include "shell/LoadForm.h"
#include "shell/LoadFormWindow.h"
#include "shell/LoadSheetPrint.h"

#include <QAction>
#include <QDialog>
#include <QMenu>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <optional>

namespace quillet {
namespace {

// Every type in the aircraft list, each with an aircraft folder of its own.
class SheetGui : public GuiFixture {
protected:
    void SetUp() override
    {
        dir.makeSimulator();
        std::vector<std::string> entries;
        for (const AircraftType& type : kAircraftTypes) {
            const std::string folder = "folder" + std::to_string(entries.size());
            dir.makeAircraft(folder);
            entries.push_back(std::string(type.type) + "," + folder);
        }
        dir.writeIni(dir.sim(), entries);
        start();
    }

    LoadFormWindow* open(int index)
    {
        app->handle([&] {
            app->form1().Combo1.setListIndex(index);
            app->form1().Command2_Click();
        });
        return app->window(std::string(kAircraftTypes[static_cast<std::size_t>(index)].form));
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

    // The text of a PDF with every run of white space made one space, or nothing without pdftotext.
    static std::optional<std::string> pdfText(const std::filesystem::path& file)
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            return std::nullopt;
        QProcess run;
        run.start(QStringLiteral("pdftotext"), {QString::fromStdString(file.string()), QStringLiteral("-")});
        run.waitForFinished(60000);
        return QString::fromUtf8(run.readAllStandardOutput())
            .replace(QRegularExpression(QStringLiteral("\\s+")), QStringLiteral(" "))
            .toStdString();
    }

    // The load sheet of the window written as PDF and read back as text.
    std::string writtenSheet(LoadFormWindow* window)
    {
        const LoadSheet sheet = window->loadSheet();
        const std::filesystem::path file = dir.path() / sheet.fileName;
        EXPECT_TRUE(saveLoadSheetPdf(QString::fromStdString(file.string()), sheet, window->form()));
        // To look at the sheets: QUILLET_KEEP_SHEETS names a folder the PDFs are copied into.
        if (const char* keep = std::getenv("QUILLET_KEEP_SHEETS"))
            std::filesystem::copy_file(file, std::filesystem::path(keep) / sheet.fileName,
                                       std::filesystem::copy_options::overwrite_existing);
        const std::optional<std::string> text = pdfText(file);
        if (!text) {
            // Under CI the test command installs it; anywhere else say why nothing was checked.
            if (std::getenv("CI"))
                ADD_FAILURE() << "pdftotext is missing";
            return {};
        }
        return *text;
    }
};

class SheetOfEveryType : public SheetGui, public ::testing::WithParamInterface<int> {};

TEST_P(SheetOfEveryType, PdfCarriesTheTotalsLimitsMarginsAndBalanceOfTheLoad)
{
    if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty() && !std::getenv("CI"))
        GTEST_SKIP() << "pdftotext is not installed (Debian package poppler-utils)";
    LoadFormWindow* window = open(GetParam());
    ASSERT_NE(window, nullptr);
    heavyPreset(window);
    const std::string text = writtenSheet(window);

    const LoadState& state = app->session().state;
    const std::string type(kAircraftTypes[static_cast<std::size_t>(GetParam())].type);
    const double zeroFuel = state.emptyweight + state.loadweight;
    const CentreOfGravity cg = centreOfGravity(state);
    const std::vector<std::string> expected = {
        "Load sheet " + type,
        "Quillet 2.0",
        poundsAndKilograms(state.emptyweight),
        poundsAndKilograms(state.loadweight),
        poundsAndKilograms(zeroFuel),
        poundsAndKilograms(state.maxzerofuel),
        poundsAndKilograms(state.fuelallowance),
        // The take-off weight is the form's total weight, or the zero-fuel weight when no fuel is allowed.
        poundsAndKilograms(
            state.fuelallowance >= 0 ? state.emptyweight + state.loadweight + state.fuelallowance : zeroFuel),
        poundsAndKilograms(state.maxtakeoff),
        poundsAndKilograms(state.maxlanding),
        zeroFuel > state.maxzerofuel ? "EXCEEDED by " + poundsAndKilograms(zeroFuel - state.maxzerofuel)
                                     : "margin " + poundsAndKilograms(state.maxzerofuel - zeroFuel),
        alongText(cg),
        acrossText(cg),
        cg.inBalance ? "in balance" : "out of balance",
    };
    for (const std::string& figure : expected)
        EXPECT_NE(text.find(figure), std::string::npos) << figure << "\nin: " << text;
}

INSTANTIATE_TEST_SUITE_P(Types, SheetOfEveryType,
                         ::testing::Range(0, static_cast<int>(kAircraftTypes.size())), [](const auto& info) {
                             return testNameOf(kAircraftTypes[static_cast<std::size_t>(info.param)].type);
                         });

TEST_F(SheetGui, AnExceededLimitIsPrintedAsExceeded)
{
    if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty() && !std::getenv("CI"))
        GTEST_SKIP() << "pdftotext is not installed (Debian package poppler-utils)";
    LoadFormWindow* window = open(0);
    ASSERT_NE(window, nullptr);
    // 9000 lb on the first seat puts the Beech 1900D 4615 lb over its zero-fuel weight of 15000 lb.
    Plan plan;
    plan.weights = {{0, 9000.0f}};
    app->handle([&] { window->form().applyPlan(plan); });
    const std::string text = writtenSheet(window);
    EXPECT_NE(text.find("EXCEEDED by 4615 lb (2093 kg)"), std::string::npos) << text;
}

TEST_F(SheetGui, FileMenuEndsWithTheLoadSheetWhichOpensItsPreview)
{
    LoadFormWindow* window = open(0);
    ASSERT_NE(window, nullptr);
    auto* file = window->findChild<QMenu*>(QStringLiteral("mnufile"));
    ASSERT_NE(file, nullptr);
    const QList<QAction*> items = file->actions();
    ASSERT_GE(items.size(), 2);
    EXPECT_TRUE(items[items.size() - 2]->isSeparator());
    EXPECT_EQ(items.back()->text(), "Load &Sheet...");
    EXPECT_EQ(items.back()->shortcut(), QKeySequence(QStringLiteral("Ctrl+P")));

    items.back()->trigger();
    auto* preview = window->findChild<QDialog*>(QStringLiteral("LoadSheetPreview"));
    ASSERT_NE(preview, nullptr);
    EXPECT_TRUE(preview->isVisible());
    auto* save = preview->findChild<QAction*>(QStringLiteral("mnusheetpdf"));
    ASSERT_NE(save, nullptr);
    EXPECT_EQ(save->text(), "Save as PDF...");
    if (const char* keep = std::getenv("QUILLET_KEEP_SHEETS"))
        preview->grab().save(QString::fromLocal8Bit(keep) + QStringLiteral("/preview.png"));
    preview->close();
}

// The balance pictures' tool tips and accessible descriptions follow the load.
TEST_F(SheetGui, BalanceToolTipsFollowTheLoad)
{
    LoadFormWindow* window = open(0);
    ASSERT_NE(window, nullptr);
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
