#include "GuiFixture.h"
#include "shell/ConfigDialog.h"

#include <QCheckBox>
#include <QFocusEvent>
#include <QPushButton>
#include <QToolButton>
#include <algorithm>

namespace quillet {
namespace {

using MainWindowGui = GuiFixture;

TEST_F(MainWindowGui, ListsTheEntriesWhoseAircraftCfgExistsAndShowsTheSummary)
{
    dir.makeSimulator();
    dir.makeAircraft("b737_300");
    dir.makeAircraft("dc10");
    dir.writeIni(dir.sim(), {"B737-300,b737_300", "Beech 1900D,nothing_here", "DC-10-30F,dc10"});
    start();

    auto* combo = find<QComboBox>(main(), "Combo1");
    ASSERT_EQ(combo->count(), 2);
    EXPECT_EQ(combo->itemText(0), "B737-300");
    EXPECT_EQ(combo->itemText(1), "DC-10-30F");
    EXPECT_EQ(combo->currentText(), "B737-300");
    EXPECT_EQ(combo->toolTip(), "Select Aircraft Type");
    // The B737-300's empty aircraft, its tanks full.
    EXPECT_EQ(text("lblbow"), "Basic Operating weight = 69953 lb.");
    EXPECT_EQ(text("lblpax"), "PAX weight =  0 lb.");
    EXPECT_EQ(text("lblmf"), "Maximum Allowable Fuel weight =  35508 lb.");
    EXPECT_EQ(text("lbltot"), "Total weight = 105461 lb.");
    EXPECT_TRUE(main()->isVisible());
    EXPECT_FALSE(app->configDialog()->isVisible()) << "the simulator folder is confirmed";

    // Its picture is missing from the program folder: told once, and the box stays blank.
    EXPECT_EQ(std::count_if(
                  told.begin(), told.end(),
                  [](const std::string& m) { return m.find("\"B737-300.gif\" was not found") != m.npos; }),
              1);
    EXPECT_TRUE(find<QWidget>(main(), "PicDHC")->isVisible());
}

TEST_F(MainWindowGui, WithoutASimulatorTheConfigurationDialogOpens)
{
    dir.writeIni(dir.sim(), {"B737-300,b737_300"});
    start();
    ConfigDialog* dialog = app->configDialog();
    ASSERT_TRUE(dialog->isVisible());
    EXPECT_FALSE(find<QCheckBox>(dialog, "Check2")->isChecked());
    EXPECT_FALSE(find<QPushButton>(dialog, "Command1")->isVisible());

    // Typing the right folder confirms it and stores the settings.
    dir.makeSimulator();
    dir.makeAircraft("b737_300");
    auto* simdir = find<QLineEdit>(dialog, "simdir");
    simdir->setFocus();
    QTest::keyClick(simdir, Qt::Key_Space);
    QTest::keyClick(simdir, Qt::Key_Backspace);
    EXPECT_TRUE(find<QCheckBox>(dialog, "Check2")->isChecked());

    dialog->close();
    QApplication::processEvents();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(find<QComboBox>(main(), "Combo1")->count(), 1) << "closing reads the settings back";
}

TEST_F(MainWindowGui, AFirstStartByHandLeadsThroughTheDialogWithTheFolderPicker)
{
    dir.makeSimulator();
    dir.makeAircraft("b737_300");
    std::vector<QString> opened;
    QString answer;
    start();
    app->chooseFolder = [&](QWidget*, const QString&, const QString& start) {
        opened.push_back(start);
        return answer;
    };
    ConfigDialog* dialog = app->configDialog();
    ASSERT_TRUE(dialog->isVisible());
    // Opened over the main window, not in a corner of the screen.
    EXPECT_TRUE(main()->frameGeometry().contains(dialog->frameGeometry().center()));

    // Cancelling the picker changes nothing.
    QTest::mouseClick(find<QToolButton>(dialog, "simdir_browse"), Qt::LeftButton);
    EXPECT_FALSE(find<QCheckBox>(dialog, "Check2")->isChecked());
    answer = QString::fromStdString(dir.sim());
    QTest::mouseClick(find<QToolButton>(dialog, "simdir_browse"), Qt::LeftButton);
    EXPECT_EQ(find<QLineEdit>(dialog, "simdir")->text(), answer);
    EXPECT_TRUE(find<QCheckBox>(dialog, "Check2")->isChecked());

    find<QComboBox>(dialog, "Combo2")->setCurrentIndex(7);
    emit find<QComboBox>(dialog, "Combo2")->activated(7);
    ASSERT_EQ(find<QComboBox>(dialog, "Combo2")->currentText(), "B737-300");
    answer = QString::fromStdString(dir.sim() + "/aircraft/b737_300");
    QTest::mouseClick(find<QToolButton>(dialog, "invalid_dir_browse"), Qt::LeftButton);
    EXPECT_EQ(opened.back(), QString::fromStdString(dir.sim() + "/aircraft"));
    EXPECT_EQ(find<QLineEdit>(dialog, "invalid_dir")->text(), "b737_300");
    QPushButton* add = find<QPushButton>(dialog, "Command1");
    ASSERT_TRUE(add->isVisible());
    QTest::mouseClick(add, Qt::LeftButton);
    dialog->close();
    QApplication::processEvents();
    EXPECT_EQ(find<QComboBox>(main(), "Combo1")->currentText(), "B737-300");
}

TEST_F(MainWindowGui, MovingOnFromTheAircraftListShowsTheStoredLoadAgain)
{
    dir.makeSimulator();
    dir.makeAircraft("beech");
    dir.writeIni(dir.sim(), {"Beech 1900D,beech"});
    start();
    ASSERT_EQ(text("lblpax"), "PAX weight =  0 lb.");

    // Another copy of the program saves a pilot of 170 lb meanwhile.
    std::string stations = dir.read("Beech 1900D.cfg");
    const std::string pilot = "\"Pilot\",13.5,-2,0,0\r\n";
    ASSERT_NE(stations.find(pilot), std::string::npos);
    stations.replace(stations.find(pilot), pilot.size(), "\"Pilot\",13.5,-2,0,170\r\n");
    dir.write("Beech 1900D.cfg", stations);

    auto* combo = find<QComboBox>(main(), "Combo1");
    QApplication::setActiveWindow(main());
    combo->setFocus(Qt::OtherFocusReason);
    QApplication::processEvents();

    // Another window taking the focus, a message box say, is not moving on.
    QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(combo, &away);
    EXPECT_EQ(text("lblpax"), "PAX weight =  0 lb.");

    QTest::keyClick(combo, Qt::Key_Tab);
    EXPECT_FALSE(combo->hasFocus());
    EXPECT_EQ(text("lblpax"), "PAX weight =  170 lb.");
}

TEST_F(MainWindowGui, ConverterAnswersWhatIsTyped)
{
    dir.writeIni(dir.sim(), {});
    start();
    auto* kg = find<QLineEdit>(main(), "Textkg");
    auto* lb = find<QLineEdit>(main(), "TextLB");
    kg->setFocus();
    kg->selectAll();
    QTest::keyClicks(kg, "100");
    EXPECT_EQ(kg->text(), "100") << "the box is not rewritten while typing";
    EXPECT_EQ(lb->text(), "220.0");
    EXPECT_EQ(text("Labellb"), "220");
    QTest::keyClick(kg, Qt::Key_Return);
    EXPECT_EQ(kg->text(), "100.0");

    QTest::mouseClick(lb, Qt::LeftButton);
    EXPECT_FALSE(kg->isVisible());
    EXPECT_TRUE(find<QLabel>(main(), "Labelkg")->isVisible());
    EXPECT_EQ(text("Labelkg"), "100");
}

} // namespace
} // namespace quillet
