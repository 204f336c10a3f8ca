#include "shell/Settings.h"

#include "ShellFixture.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(SettingsFile, WriteAndReadBackThreeEntries)
{
    const std::vector<MenuEntry> entries{
        {"B737-300", "b737_300"}, {"Beech 1900D", "beech 1900d"}, {"DC-10-30F", "DC10_30F"}};
    const std::string bytes = formatSettings("C:\\program files\\microsoft games\\fs2000", entries);
    EXPECT_EQ(bytes, "C:\\program files\\microsoft games\\fs2000\r\n3\r\n"
                     "B737-300,b737_300\r\nBeech 1900D,beech 1900d\r\nDC-10-30F,DC10_30F\r\n");

    const Settings read = parseSettings(bytes, 21);
    EXPECT_EQ(read.simfolder, "C:\\program files\\microsoft games\\fs2000");
    ASSERT_EQ(read.entries.size(), 3u);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(read.entries[i].type, entries[i].type);
        EXPECT_EQ(read.entries[i].folder, entries[i].folder);
    }
    EXPECT_TRUE(read.problems.empty());
}

TEST(SettingsFile, ClassicFieldReading)
{
    const Settings read = parseSettings("  D:\\FS2000  \n2\n\"Beech 1900D\",\"beech, the fast one\"\nB737-300 ,  b737\n", 21);
    EXPECT_EQ(read.simfolder, "D:\\FS2000");
    ASSERT_EQ(read.entries.size(), 2u);
    EXPECT_EQ(read.entries[0].folder, "beech, the fast one");
    EXPECT_EQ(read.entries[1].type, "B737-300");
    EXPECT_EQ(read.entries[1].folder, "b737");
}

TEST(SettingsFile, CountOfZeroOrNotANumberReadsNoEntries)
{
    EXPECT_TRUE(parseSettings("C:\\fs\r\n0\r\nB737-300,b737\r\n", 21).entries.empty());
    EXPECT_TRUE(parseSettings("C:\\fs\r\nmany\r\nB737-300,b737\r\n", 21).entries.empty());
    EXPECT_TRUE(parseSettings("C:\\fs\r\n-3\r\n", 21).problems.empty());
}

TEST(SettingsFile, TakesWhatFitsAndSaysWhatDidNot)
{
    const Settings early = parseSettings("C:\\fs\r\n3\r\nB737-300,b737\r\nBeech 1900D\r\n", 21);
    ASSERT_EQ(early.entries.size(), 1u);
    ASSERT_EQ(early.problems.size(), 1u);
    EXPECT_EQ(early.problems[0], "it announces 3 aircraft but ends after 1");

    std::string many = "C:\\fs\r\n25\r\n";
    for (int i = 0; i < 25; ++i)
        many += "T" + std::to_string(i) + ",f" + std::to_string(i) + "\r\n";
    const Settings over = parseSettings(many, 21);
    EXPECT_EQ(over.entries.size(), 21u);
    EXPECT_EQ(over.entries.back().type, "T20");
    ASSERT_EQ(over.problems.size(), 1u);
    EXPECT_NE(over.problems[0].find("lists 25 aircraft"), std::string::npos);

    EXPECT_FALSE(parseSettings("", 21).problems.empty());
}

using StartUp = ShellFixture;

TEST_F(StartUp, ListsOnlyEntriesWhoseFolderHoldsAircraftCfgInAnyCase)
{
    dir.makeSimulator("FS2000.EXE");
    dir.makeAircraft("b737_300", "AIRCRAFT.CFG");
    dir.makeAircraft("beech");
    dir.write("sim/aircraft/empty/readme.txt", "no cfg here");
    dir.writeIni(dir.sim(), {"B737-300,b737_300", "DHC-8-300,empty", "Beech 1900D,beech", "MD-90-30,missing"});

    form1.Form_Load();
    EXPECT_EQ(form1.Combo1.items(), (std::vector<std::string>{"B737-300", "Beech 1900D"}));
    EXPECT_EQ(form1.Combo1.text(), "B737-300") << "the first entry is selected";
    EXPECT_EQ(form1.Combo1.tooltip, "Select Aircraft Type");
    EXPECT_EQ(state.nmenu, 4);
    EXPECT_TRUE(state.menuvalid[0]);
    EXPECT_FALSE(state.menuvalid[1]);
    EXPECT_EQ(form1.form4().Combo2.items(), (std::vector<std::string>{"DHC-8-300", "MD-90-30"}));
    EXPECT_TRUE(told("quillet.ini").empty());
}

TEST_F(StartUp, LineTwoZeroLeavesTheListEmpty)
{
    dir.makeSimulator("FS2000.EXE");
    dir.makeAircraft("b737_300");
    dir.write("quillet.ini", dir.sim() + "\r\n0\r\nB737-300,b737_300\r\n");
    form1.Form_Load();
    EXPECT_TRUE(form1.Combo1.items().empty());
    EXPECT_EQ(form1.Combo1.tooltip, "");
    EXPECT_EQ(state.nmenu, 0);
}

TEST_F(StartUp, MissingSettingsFileStartsEmptyWithTheDefaultFolderAndSaysSo)
{
    form1.Form_Load();
    EXPECT_EQ(state.simfolder, "C:\\program files\\microsoft games\\fs2000");
    EXPECT_EQ(state.nmenu, 0);
    EXPECT_TRUE(form1.Combo1.items().empty());
    ASSERT_EQ(session.messages.pending().size(), 1u);
    EXPECT_NE(session.messages.pending()[0].find("\"quillet.ini\" was not found"), std::string::npos);
    EXPECT_TRUE(form1.form4().visible) << "the configuration dialog is shown";
    EXPECT_FALSE(std::filesystem::exists(dir.path() / "quillet.ini")) << "nothing is written at start";
}

TEST_F(StartUp, SettingsFileThatIsNotOneIsRefusedWithAMessage)
{
    dir.write("quillet.ini", std::string(100000, 'x'));
    form1.Form_Load();
    EXPECT_EQ(state.nmenu, 0);
    ASSERT_EQ(session.messages.pending().size(), 1u);
    EXPECT_NE(session.messages.pending()[0].find("too large"), std::string::npos);
}

TEST_F(StartUp, AShortSettingsFileIsUsedAsFarAsItGoesAndToldOnce)
{
    dir.makeSimulator("FS2000.EXE");
    dir.makeAircraft("b737_300");
    dir.write("quillet.ini", dir.sim() + "\r\n2\r\nB737-300,b737_300\r\n");
    form1.Form_Load();
    form1.mnuconfigair_Click(); // reads the file again
    EXPECT_EQ(form1.Combo1.items(), (std::vector<std::string>{"B737-300"}));
    EXPECT_EQ(told("ends after 1").size(), 1u);
}

TEST_F(StartUp, AllFoldersInvalidListsEverythingAsAvailable)
{
    dir.makeSimulator("FS2000.EXE");
    dir.writeIni(dir.sim(), {"B737-300,b737_300", "Beech 1900D,beech"});
    form1.Form_Load();
    EXPECT_TRUE(form1.Combo1.items().empty());
    EXPECT_EQ(form1.form4().Combo2.items(), (std::vector<std::string>{"B737-300", "Beech 1900D"}));
    EXPECT_TRUE(form1.form4().Check2);
    EXPECT_FALSE(form1.form4().visible) << "the simulator folder is confirmed";
}

} // namespace
} // namespace quillet
