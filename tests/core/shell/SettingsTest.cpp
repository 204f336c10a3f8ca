#include "shell/Settings.h"

#include "Golden.h"
#include "ShellFixture.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace quillet {
namespace {

// What a settings file reads as: "[folder] type=folder; ... (problem)".
std::string summary(const Settings& read)
{
    std::string out = "[" + read.simfolder + "]";
    for (const MenuEntry& entry : read.entries)
        out += " " + entry.type + "=" + entry.folder + ";";
    for (const std::string& problem : read.problems)
        out += " (" + problem + ")";
    return out;
}

TEST(SettingsFile, WritesQuotesOnlyWhereNeededAndReadsItBack)
{
    const std::string bytes =
        formatSettings("D:\\Games, old\\fs2000",
                       {{"B737-300", "b737, old"}, {"Beech 1900D", " beech"}, {"DC-10-30F", "DC10_30F"}});
    EXPECT_EQ(bytes, "\"D:\\Games, old\\fs2000\"\r\n3\r\nB737-300,\"b737, old\"\r\nBeech 1900D,\" beech\"\r\n"
                     "DC-10-30F,DC10_30F\r\n");
    EXPECT_EQ(summary(parseSettings(bytes, 21)),
              "[D:\\Games, old\\fs2000] B737-300=b737, old; Beech 1900D= beech; DC-10-30F=DC10_30F;");
}

TEST(SettingsFile, TakesWhatFitsAndSaysWhatDidNot)
{
    const std::pair<std::string, std::string> cases[] = {
        {"  D:\\FS2000  \n2\n\"Beech 1900D\",\"beech, the fast one\"\nB737-300 ,  b737\n",
         "[D:\\FS2000] Beech 1900D=beech, the fast one; B737-300=b737;"},
        {"C:\\fs\r\n0\r\nB737-300,b737\r\n", "[C:\\fs]"},
        {"C:\\fs\r\nmany\r\nB737-300,b737\r\n", "[C:\\fs]"},
        {"C:\\fs\r\n-3\r\n", "[C:\\fs]"},
        {"\r\n1\r\nB737-300,b737\r\n\r\n\r\n", "[] B737-300=b737;"}, // blank lines at the end are no fields
        {"C:\\fs\r\n3\r\nB737-300,b737\r\nBeech 1900D\r\n",
         "[C:\\fs] B737-300=b737; (it announces 3 aircraft but ends after 1)"},
        {"", "[] (it is empty)"},
    };
    for (const auto& [text, read] : cases)
        EXPECT_EQ(summary(parseSettings(text, 21)), read) << text;
}

using StartUp = ShellFixture;

TEST_F(StartUp, ListsOnlyEntriesWhoseFolderHoldsAircraftCfgInAnyCase)
{
    dir.makeSimulator("FS2000.EXE");
    dir.makeAircraft("b737_300", "AIRCRAFT.CFG");
    dir.makeAircraft("beech");
    dir.write("sim/aircraft/empty/readme.txt", "no cfg here");
    dir.writeIni(dir.sim(),
                 {"B737-300,b737_300", "DHC-8-300,empty", "Beech 1900D,beech", "MD-90-30,missing"});

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

TEST_F(StartUp, TwoEntriesOfOneTypeAreBothListedAndTheLastFolderIsUsed)
{
    dir.makeSimulator();
    dir.makeAircraft("beech_a");
    dir.makeAircraft("beech_b");
    dir.writeIni(dir.sim(), {"Beech 1900D,beech_a", "Beech 1900D,beech_b"});
    form1.Form_Load();
    EXPECT_EQ(form1.Combo1.items(), (std::vector<std::string>{"Beech 1900D", "Beech 1900D"}));
    EXPECT_EQ(form1.form4().Valid_dir.text(), "beech_b") << "the configuration dialog shows the last folder";
}

TEST_F(StartUp, MissingSettingsFileOffersEveryTypeInTheDialogAndSaysWhatToDoNext)
{
    form1.Form_Load();
    EXPECT_EQ(state.simfolder, "C:\\program files\\microsoft games\\fs2000");
    EXPECT_TRUE(form1.Combo1.items().empty());
    EXPECT_TRUE(form1.form4().Combo1.items().empty());
    EXPECT_EQ(form1.form4().Combo2.items(),
              (std::vector<std::string>{"Beech 1900D", "Empraer EMB_120", "DHC-8-300", "CRJ-200ER",
                                        "DC-10-30F", "B727-212ADV", "B737-200ADV", "B737-300", "B757-200",
                                        "B757-200F", "B767-300ER", "DC-8-71F", "DC-9-30F", "MD-90-30"}));
    EXPECT_EQ(form1.form4().Combo2.text(), "Beech 1900D") << "ready for its folder";
    expectGoldenMessages("settings-missing.txt", session.messages.pending(), dir.path());
    EXPECT_TRUE(form1.form4().visible) << "the configuration dialog is shown";
    EXPECT_FALSE(std::filesystem::exists(dir.path() / "quillet.ini")) << "nothing is written at start";
}

TEST_F(StartUp, AllFoldersInvalidListsEverythingAsAvailable)
{
    dir.makeSimulator("FS2000.EXE");
    dir.writeIni(dir.sim(), {"B737-300,b737_300", "Beech 1900D,beech"});
    form1.Form_Load();
    EXPECT_TRUE(form1.Combo1.items().empty());
    EXPECT_EQ(form1.Combo1.tooltip, "");
    EXPECT_EQ(form1.form4().Combo2.items(), (std::vector<std::string>{"B737-300", "Beech 1900D"}));
    EXPECT_TRUE(form1.form4().Check2);
    EXPECT_FALSE(form1.form4().visible) << "the simulator folder is confirmed";
}

TEST_F(StartUp, WhatTheSettingsFileHoldsIsNeverDroppedWithoutACopyAndAWord)
{
    dir.makeSimulator("FS2000.EXE");
    dir.makeAircraft("b737_300");
    const std::string sim = dir.sim();
    std::string entries;
    for (int i = 0; i < 22; ++i)
        entries += "T" + std::to_string(i) + ",f" + std::to_string(i) + "\r\n";
    const std::string many = sim + "\r\n22\r\n" + entries;
    const std::string first21 = sim + "\r\n21\r\n" + entries.substr(0, entries.find("T21,"));
    struct Case {
        const char* what;
        std::string before, after;
        int menu; // aircraft in the menu afterwards
    };
    const Case cases[] = {
        {"not a number", sim + "\r\nabc\r\nB737-300,b737_300\r\n", sim + "\r\n0\r\n", 0},
        {"negative", sim + "\r\n-2\r\nB737-300,b737_300\r\n", sim + "\r\n0\r\n", 0},
        {"a fraction", sim + "\r\n1.5\r\nB737-300,b737_300\r\nB757-200,b757\r\n",
         sim + "\r\n1\r\nB737-300,b737_300\r\n", 1},
        {"ends early", sim + "\r\n2\r\nB737-300,b737_300\r\n", sim + "\r\n1\r\nB737-300,b737_300\r\n", 1},
        {"a 22nd entry", many, first21, 21},
    };
    std::vector<std::string> said; // about each, what was dropped and where the copy is
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        std::filesystem::remove(dir.path() / "quillet.ini.bak");
        dir.write("quillet.ini", c.before);
        Session run{prompt, random, clock, dir.path()};
        Form1 main{run, forms};
        main.Form_Load(); // the dialog's folder check stores the settings
        EXPECT_EQ(dir.ini(), c.after);
        EXPECT_EQ(dir.read("quillet.ini.bak"), c.before);
        for (const std::string& message : told("quillet.ini", run))
            said.push_back(message);

        // Said once: the next start finds nothing to drop, a full menu of 21 included.
        Session next{prompt, random, clock, dir.path()};
        Form1 again{next, forms};
        again.Form_Load();
        EXPECT_EQ(next.state.nmenu, c.menu);
        EXPECT_TRUE(told("quillet.ini", next).empty());
        EXPECT_EQ(dir.read("quillet.ini.bak"), c.before);
    }
    expectGoldenMessages("settings-dropped.txt", said, dir.path());
}

TEST_F(StartUp, SettingsFileThatIsNotOneIsRefusedWithAMessage)
{
    dir.write("quillet.ini", std::string(100000, 'x'));
    form1.Form_Load();
    EXPECT_EQ(state.nmenu, 0);
    ASSERT_EQ(session.messages.pending().size(), 1u);
    EXPECT_NE(session.messages.pending()[0].find("too large"), std::string::npos);
}

TEST_F(StartUp, ASettingsFileThatIsNotTextStartsEmptyAndIsKeptAsACopy)
{
    const std::string utf16("\xFF\xFE"
                            "C\0:\0\r\0\n\0"
                            "0\0\r\0\n\0",
                            14);
    dir.write("quillet.ini", utf16);
    form1.Form_Load();
    expectGoldenMessages("settings-utf16.txt", session.messages.take(), dir.path());
    form1.form4Window().close();
    EXPECT_EQ(dir.ini(), "C:\\program files\\microsoft games\\fs2000\r\n0\r\n");
    EXPECT_EQ(dir.read("quillet.ini.bak"), utf16);
    EXPECT_EQ(told("quillet.ini.bak").size(), 1u);
}

TEST_F(StartUp, AHandQuotedFolderHoldingACommaIsKept)
{
    dir.makeSimulator("FS2000.EXE");
    dir.makeAircraft("b737, old");
    dir.write("quillet.ini", dir.sim() + "\n1\n\"B737-300\" , \"b737, old\"\n");
    form1.Form_Load();
    EXPECT_EQ(form1.Combo1.items(), std::vector<std::string>{"B737-300"});
    EXPECT_EQ(dir.ini(), dir.sim() + "\r\n1\r\nB737-300,\"b737, old\"\r\n");
    EXPECT_FALSE(std::filesystem::exists(dir.path() / "quillet.ini.bak")) << "nothing was lost";
    EXPECT_TRUE(told("quillet.ini").empty());
}

// Entries whose folder is missing are simply not set up yet; one whose folder is there but holds no
// usable aircraft.cfg, or whose folder name is a path, is named, once a run.
TEST_F(StartUp, AnEntryThatCannotBeListedIsNamedOnceWithWhy)
{
    dir.makeSimulator();
    dir.makeAircraft("b737_300");
    dir.write("sim/aircraft/dash8/readme.txt", "");
    std::filesystem::create_directories(dir.path() / "sim/aircraft/md90/aircraft.cfg");
    dir.write("sim/aircraft/beech", "a file");
    dir.write("outside/aircraft.cfg", "[WEIGHT_AND_BALANCE]\r\n");
    const std::string absolute = (dir.path() / "outside").string();
    std::vector<std::string> entries{
        "B737-300,b737_300",      "DHC-8-300,dash8",      "MD-90-30,md90",
        "Beech 1900D,beech",      "B727-212ADV,not_yet",  "CRJ-200ER,..\\..\\outside",
        "DC-9-30F,../../outside", "DC-8-71F," + absolute, "DC-10-30F,"};
#ifndef _WIN32
    std::filesystem::create_directories(dir.path() / "sim/aircraft/b757");
    ASSERT_EQ(mkfifo((dir.path() / "sim/aircraft/b757/aircraft.cfg").c_str(), 0600), 0);
    entries.push_back("B757-200,b757");
#endif
    dir.writeIni(dir.sim(), entries);
    form1.Form_Load();
    form1.mnuconfigair_Click(); // reads the file again
    EXPECT_EQ(form1.Combo1.items(), std::vector<std::string>{"B737-300"});

    std::vector<std::string> said = told("is not in the aircraft list");
#ifndef _WIN32
    ASSERT_FALSE(said.empty());
    EXPECT_NE(said.back().find("b757\" is not a plain file"), std::string::npos) << said.back();
    said.pop_back();
#endif
    for (const std::string& message : told("is not a single folder name"))
        said.push_back(message);
    expectGoldenMessages("settings-not-listed.txt", said, dir.path());

    // Nor can the dialog take such a name.
    Form4& dialog = form1.form4();
    dialog.Combo2.setListIndex(0);
    dialog.invalid_dir.setText("..\\..\\outside");
    EXPECT_FALSE(dialog.Command1_visible);
    dialog.invalid_dir.setText("b737_300");
    EXPECT_TRUE(dialog.Command1_visible);
}

} // namespace
} // namespace quillet
