#include "Golden.h"
#include "ShellFixture.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace quillet {
namespace {

using ConfigDialog = ShellFixture;

TEST_F(ConfigDialog, TypingTheSimulatorFolderStoresItOnlyWhenItHoldsTheSimulator)
{
    dir.makeSimulator("FS2000.EXE");
    dir.makeAircraft("b737_300");
    dir.writeIni("nowhere", {"B737-300,b737_300", "Beech 1900D,beech"});
    form1.Form_Load();
    ASSERT_FALSE(form1.form4().Check2);
    ASSERT_TRUE(form1.Combo1.items().empty());

    // Type the folder letter by letter, then a trailing slash and one letter more. Before each
    // keystroke the settings file is removed and the main list marked, to see whether that keystroke
    // wrote the file and read it back.
    const std::string folder = dir.sim() + "/";
    std::vector<std::size_t> stored;
    std::vector<std::size_t> reloaded;
    std::string typed;
    for (char c : folder + "x") {
        typed += c;
        fs::remove(dir.path() / "quillet.ini");
        form1.Combo1.clear();
        form1.Combo1.addItem("marker");
        form1.form4().simdir.setText(typed);
        if (fs::exists(dir.path() / "quillet.ini"))
            stored.push_back(typed.size());
        if (form1.Combo1.items() != std::vector<std::string>{"marker"})
            reloaded.push_back(typed.size());
    }
    const std::vector<std::size_t> expected{dir.sim().size(), dir.sim().size() + 1};
    EXPECT_EQ(stored, expected);
    EXPECT_EQ(reloaded, expected);
    EXPECT_TRUE(form1.form4().Check2);
    EXPECT_EQ(state.simfolder, dir.sim() + "/") << "the last folder that held the simulator";

    form1.form4().simdir.setText(dir.sim());
    EXPECT_EQ(dir.ini(), dir.sim() + "\r\n2\r\nB737-300,b737_300\r\nBeech 1900D,beech\r\n");
    EXPECT_EQ(form1.Combo1.items(), std::vector<std::string>{"B737-300"});
}

TEST_F(ConfigDialog, StartingWithTheBoxsOwnTextRunsNoCheck)
{
    // The default folder, made to exist below the program folder where a relative path leads.
    const std::string initial = "C:\\program files\\microsoft games\\fs2000";
    dir.write("C:/program files/microsoft games/fs2000/fs2000.exe", "x");
    dir.writeIni(initial, {});
    form1.Form_Load();
    EXPECT_TRUE(form1.form4().visible);
    EXPECT_FALSE(form1.form4().Check2);

    // The same folder typed again is taken.
    form1.form4().simdir.setText("C:\\program files");
    form1.form4().simdir.setText(initial);
    EXPECT_TRUE(form1.form4().Check2);
}

TEST_F(ConfigDialog, AddingAnEntryMovesItToTheActiveList)
{
    dir.makeSimulator("FS2000.EXE");
    dir.makeAircraft("b737_300");
    dir.makeAircraft("beech_new");
    dir.writeIni(dir.sim(), {"B737-300,b737_300", "Beech 1900D,oldbeech", "DHC-8-300,dhc8"});
    form1.Form_Load();
    Form4& dialog = form1.form4();
    EXPECT_EQ(dialog.Combo2.items(), (std::vector<std::string>{"Beech 1900D", "DHC-8-300"}));
    EXPECT_EQ(dialog.Valid_dir.text(), "b737_300");
    EXPECT_FALSE(dialog.Command1_visible);

    dialog.Combo2.setListIndex(0);
    dialog.invalid_dir.setText("beech_ne");
    EXPECT_FALSE(dialog.Command1_visible) << "no aircraft.cfg there";
    dialog.invalid_dir.setText("BEECH_NEW");
    EXPECT_TRUE(dialog.Command1_visible);
    dialog.Command1_Click();

    EXPECT_EQ(dialog.Combo1.items(), (std::vector<std::string>{"B737-300", "Beech 1900D"}));
    EXPECT_EQ(dialog.Combo2.items(), std::vector<std::string>{"DHC-8-300"});
    EXPECT_EQ(dialog.Combo2.listIndex(), -1);
    EXPECT_EQ(dialog.invalid_dir.text(), "");
    EXPECT_FALSE(dialog.Command1_visible);
    EXPECT_EQ(state.menufolder[1], "BEECH_NEW");
    EXPECT_FALSE(state.menuvalid[1]) << "set when the settings are read again";
    EXPECT_EQ(form1.Combo1.items(), std::vector<std::string>{"B737-300"}) << "not yet listed";

    // Pressing "Add" again with nothing chosen changes nothing.
    dialog.invalid_dir.setText("b737_300");
    dialog.Command1_Click();
    EXPECT_EQ(dialog.Combo2.items(), std::vector<std::string>{"DHC-8-300"});
    EXPECT_EQ(dialog.Combo1.items().size(), 2u);
    EXPECT_EQ(state.menufolder[0], "b737_300");

    form1.form4Window().close();
    EXPECT_FALSE(form1.form4Window().visible);
    EXPECT_FALSE(form1.form4Window().isLoaded());
    EXPECT_EQ(form1.Combo1.items(), (std::vector<std::string>{"B737-300", "Beech 1900D"}));
    EXPECT_NE(dir.ini().find("Beech 1900D,BEECH_NEW\r\n"), std::string::npos);

    // Opened again, the dialog builds its lists afresh.
    form1.mnuconfigair_Click();
    EXPECT_TRUE(form1.form4().visible);
    EXPECT_EQ(form1.form4().Combo1.items(), (std::vector<std::string>{"B737-300", "Beech 1900D"}));
    EXPECT_EQ(form1.form4().invalid_dir.text(), "aircraftdir");
}

TEST_F(ConfigDialog, AMissingSettingsFileIsCreatedWhenTheDialogCloses)
{
    form1.Form_Load();
    ASSERT_TRUE(form1.form4().visible);
    form1.form4Window().close();
    expectGoldenFile("starter.ini", dir.ini()); // the same starter menu a user folder is given
}

// What a chosen folder fills in, and "Add" after it, is checked through the dialog's browse buttons.
TEST_F(ConfigDialog, TheFolderPickerStoresTheSimulatorAndRefusesAnAircraftOutsideIt)
{
    dir.makeSimulator("FS2000.EXE");
    dir.makeAircraft("b737_300");
    dir.write("elsewhere/b737_300/aircraft.cfg", "[WEIGHT_AND_BALANCE]\r\n");
    dir.writeIni("nowhere", {"B737-300,"});
    form1.Form_Load();
    Form4& dialog = form1.form4();
    EXPECT_EQ(dialog.aircraftPickerStart(), dialog.simulatorPickerStart())
        << "no aircraft folder to open yet";

    dialog.simulatorFolderChosen(dir.path() / "sim");
    EXPECT_EQ(dir.ini(), dir.sim() + "\r\n1\r\nB737-300,\r\n");
    EXPECT_EQ(dialog.aircraftPickerStart(), dir.path() / "sim" / "aircraft");

    // A folder outside the simulator's aircraft folder is refused with a word, the box untouched.
    session.messages.take();
    dialog.aircraftFolderChosen(dir.path() / "elsewhere" / "b737_300");
    EXPECT_EQ(dialog.invalid_dir.text(), "aircraftdir");
    EXPECT_FALSE(dialog.Command1_visible);
    ASSERT_EQ(session.messages.pending().size(), 1u);
    EXPECT_NE(session.messages.take()[0].find("is not in the simulator's aircraft folder"),
              std::string::npos);
}

TEST_F(ConfigDialog, ASettingsFileThatCannotBeWrittenIsReportedOnlyWhenItNeedsAChange)
{
    const auto readOnly = [&] {
        fs::permissions(dir.path() / "quillet.ini", fs::perms::owner_write, fs::perm_options::remove);
    };
    dir.makeSimulator("FS2000.EXE");
    dir.writeIni("nowhere", {});
    readOnly();
    form1.Form_Load();
    session.messages.take();
    form1.form4().simdir.setText(dir.sim());
    expectGoldenMessages("settings-read-only.txt", session.messages.take(), dir.path());
    EXPECT_EQ(dir.ini(), "nowhere\r\n0\r\n");

    // Up to date, it is not written at all: starting again says nothing.
    fs::permissions(dir.path() / "quillet.ini", fs::perms::owner_write, fs::perm_options::add);
    fs::remove(dir.path() / "quillet.ini"); // Windows removes no read-only file
    dir.writeIni(dir.sim(), {});
    readOnly();
    Session again{prompt, random, clock, dir.path()};
    Form1 main{again, forms};
    main.Form_Load();
    EXPECT_TRUE(main.form4().Check2);
    EXPECT_TRUE(again.messages.pending().empty()) << again.messages.pending()[0];
    EXPECT_EQ(dir.ini(), dir.sim() + "\r\n0\r\n");
}

} // namespace
} // namespace quillet
