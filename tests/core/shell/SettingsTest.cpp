#include "shell/Settings.h"

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

    std::string many = "C:\\fs\r\n25\r\n";
    for (int i = 0; i < 25; ++i)
        many += "T" + std::to_string(i) + ",f" + std::to_string(i) + "\r\n";
    const Settings over = parseSettings(many, 21);
    EXPECT_EQ(over.entries.size(), 21u);
    EXPECT_EQ(over.entries.back().type, "T20");
    ASSERT_EQ(over.problems.size(), 1u);
    EXPECT_NE(over.problems[0].find("lists 25 aircraft"), std::string::npos);
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
    EXPECT_EQ(
        session.messages.pending(),
        std::vector<std::string>{
            "Quillet found no \"quillet.ini\" in \"" + dir.path().string() +
            "\", so it starts with all its aircraft types waiting under \"Avaliable Aircraft\". Next, in the "
            "configuration dialog, give the simulator folder (the one holding fs2000.exe), then choose each "
            "aircraft you fly, type or browse to its folder and press \"Add\" when it appears; closing the "
            "dialog saves the settings."});
    EXPECT_TRUE(form1.form4().visible) << "the configuration dialog is shown";
    EXPECT_FALSE(std::filesystem::exists(dir.path() / "quillet.ini")) << "nothing is written at start";
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
        std::string lost;
        int menu; // aircraft in the menu afterwards
    };
    const Case cases[] = {
        {"not a number", sim + "\r\nabc\r\nB737-300,b737_300\r\n", sim + "\r\n0\r\n",
         "holds \"abc\" on line 2", 0},
        {"negative", sim + "\r\n-2\r\nB737-300,b737_300\r\n", sim + "\r\n0\r\n", "holds \"-2\" on line 2", 0},
        {"a fraction", sim + "\r\n1.5\r\nB737-300,b737_300\r\nB757-200,b757\r\n",
         sim + "\r\n1\r\nB737-300,b737_300\r\n", "holds \"1.5\" on line 2", 1},
        {"a 22nd entry", many, first21, "holds \"22\" on line 2", 21},
    };
    const std::string ini = (dir.path() / "quillet.ini").string();
    const auto about = [](Session& session, const std::string& part) {
        std::vector<std::string> found;
        for (const auto& message : session.messages.take()) {
            if (message.find(part) != std::string::npos)
                found.push_back(message);
        }
        return found;
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        std::filesystem::remove(dir.path() / "quillet.ini.bak");
        dir.write("quillet.ini", c.before);
        Session run{prompt, random, clock, dir.path()};
        Form1 main{run, forms};
        main.Form_Load(); // the dialog's folder check stores the settings
        EXPECT_EQ(dir.ini(), c.after);
        EXPECT_EQ(dir.read("quillet.ini.bak"), c.before);
        EXPECT_EQ(
            about(run, "quillet.ini.bak"),
            std::vector<std::string>{"The settings file \"" + ini + "\" " + c.lost +
                                     ", which Quillet cannot keep as it stands. The file as it was is kept "
                                     "as \"" +
                                     ini + ".bak\", and \"" + ini +
                                     "\" now holds the simulator "
                                     "folder and the " +
                                     std::to_string(c.menu) + " aircraft of Quillet's menu."});

        // Said once: the next start finds nothing to drop, a full menu of 21 included.
        Session next{prompt, random, clock, dir.path()};
        Form1 again{next, forms};
        again.Form_Load();
        EXPECT_EQ(next.state.nmenu, c.menu);
        EXPECT_TRUE(about(next, "quillet.ini").empty());
        EXPECT_EQ(dir.read("quillet.ini.bak"), c.before);
    }
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
    const std::string ini = (dir.path() / "quillet.ini").string();
    EXPECT_EQ(
        session.messages.take(),
        std::vector<std::string>{
            "The settings could not be read: \"" + ini +
            "\" is saved as UTF-16 (Unicode) text, which Quillet cannot read; save it again as ANSI text. "
            "Quillet starts with no aircraft and the simulator folder \"C:\\program files\\microsoft "
            "games\\fs2000\"; set them in the configuration dialog, which saves them when it is closed."});
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

    const auto notListed = [&](const std::string& type, const std::string& why) {
        return "\"" + type + "\" is not in the aircraft list: " + why +
               ". Put the aircraft's aircraft.cfg there, or give \"" + type +
               "\" its folder in the configuration dialog.";
    };
    const auto folder = [&](const std::string& name) { return dir.sim() + "\\aircraft\\" + name; };
    std::vector<std::string> expected{
        notListed("DHC-8-300", "its folder \"" + folder("dash8") + "\" holds no aircraft.cfg"),
        notListed("MD-90-30", "the aircraft.cfg in \"" + folder("md90") + "\" is a folder, not a file"),
        notListed("Beech 1900D", "\"" + folder("beech") + "\" is a file, not a folder")};
#ifndef _WIN32
    expected.push_back(
        notListed("B757-200", "the aircraft.cfg in \"" + folder("b757") + "\" is not a plain file"));
#endif
    EXPECT_EQ(told("is not in the aircraft list"), expected);

    const std::string ini = (dir.path() / "quillet.ini").string();
    const auto named = [&](const std::string& folder, const std::string& type) {
        return "The aircraft folder \"" + folder + "\" of \"" + type + "\" in \"" + ini +
               "\" is not a single folder name, so \"" + type +
               "\" is not listed. Give it the name of its folder "
               "inside \"" +
               dir.sim() + "\\aircraft\" in the configuration dialog.";
    };
    EXPECT_EQ(told("is not a single folder name"),
              (std::vector<std::string>{named("..\\..\\outside", "CRJ-200ER"),
                                        named("../../outside", "DC-9-30F"), named(absolute, "DC-8-71F")}));

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
