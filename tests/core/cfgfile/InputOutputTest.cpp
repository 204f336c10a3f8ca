#include "cfgfile/inputoutput.h"

#include "SmallType.h"
#include "TempDir.h"
#include "cfgfile/WeightBlock.h"

#include <gtest/gtest.h>
#include <map>

namespace fs = std::filesystem;

namespace quillet {
namespace {

const std::string kType = "Beech 1900D";

// The small type's station file as the program writes it with nobody aboard.
const std::string kStationFile = "4,16950,16500,10615,15000,3578\r\n"
                                 "3,1,1,2,0,1,0\r\n"
                                 "\"Pilot\",13.5,-2,0,0\r\n"
                                 "\"Co-pilot\",13.5,2,0,0\r\n"
                                 "\"Passenger 1\",5.25,-1.1,0,0\r\n"
                                 "\"Cargo\",-17,0,0,0\r\n";

// A simulator folder with one aircraft, and a small type set up the way a load form does it.
class CfgFileTest : public ::testing::Test {
protected:
    CfgFileTest()
    {
        fs::create_directories(session.programFolder);
        LoadState& s = session.state;
        s.simfolder = (dir.path() / "fs2000").string();
        s.nmenu = 2;
        s.menutype[0] = kType;
        s.menufolder[0] = "beech";
        s.menutype[1] = "DHC-8-300";
        s.menufolder[1] = "dash8";
        session.currentType = [this] { return type; };

        setUpSmallType(s);
    }

    fs::path cfg() const { return dir.path() / "fs2000/aircraft/beech/aircraft.cfg"; }
    fs::path backup() const { return dir.path() / "fs2000/aircraft/beech/aircraft.cfg.bak"; }
    fs::path stations() const { return session.programFolder / (kType + ".cfg"); }
    void writeCfg(const std::string& bytes) const { dir.write("fs2000/aircraft/beech/aircraft.cfg", bytes); }
    void writeStations(const std::string& bytes) const { dir.write("program/" + kType + ".cfg", bytes); }

    // Every file under the test folder with its bytes.
    std::map<fs::path, std::string> allFiles() const
    {
        std::map<fs::path, std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(dir.path())) {
            if (entry.is_regular_file())
                files[entry.path()] = TempDir::readFile(entry.path());
        }
        return files;
    }

    std::string block() const
    {
        std::string out;
        for (const std::string& line : weightAndBalanceBlock(session.state, kType, clock.today()))
            out += line + "\r\n";
        return out;
    }

    TempDir dir;
    ScriptedPrompt prompt;
    ScriptedRandom random;
    FixedClock clock{Date{2001, 3, 7}};
    Session session{prompt, random, clock, dir.path() / "program"};
    std::string type = kType;
};

TEST_F(CfgFileTest, FirstReadCreatesTheStationFileAndTheBackupWhichLaterReadsLeaveAlone)
{
    const std::string original =
        "[fltsim.0]\r\ntitle=Beech\r\n[WEIGHT_AND_BALANCE]\r\nstation_load.0 = 1\r\n";
    writeCfg(original);
    int summaries = 0;
    session.afterRead = [&] { ++summaries; };
    ASSERT_TRUE(readcfg(session));
    EXPECT_EQ(TempDir::readFile(stations()), kStationFile);
    EXPECT_EQ(TempDir::readFile(backup()), original);
    EXPECT_EQ(session.state.cfgcount, 4);
    EXPECT_EQ(session.state.sectionlines, 2);
    EXPECT_EQ(summaries, 1);
    EXPECT_TRUE(session.messages.pending().empty());

    // A backup of another letter case is not ours, and is not replaced either.
    dir.write("fs2000/aircraft/dash8/aircraft.cfg", "x");
    dir.write("fs2000/aircraft/dash8/AIRCRAFT.CFG.BAK", "theirs");
    type = "DHC-8-300";
    ASSERT_TRUE(readcfg(session));
    EXPECT_EQ(dir.read("fs2000/aircraft/dash8/AIRCRAFT.CFG.BAK"), "theirs");
    EXPECT_EQ(dir.read("fs2000/aircraft/dash8/aircraft.cfg.bak"), "x");

    type = kType;
    writeCfg("changed\r\n");
    ASSERT_TRUE(readcfg(session));
    EXPECT_EQ(TempDir::readFile(backup()), original);
}

TEST_F(CfgFileTest, SavingKeepsEveryLineOutsideTheSectionByteForByte)
{
    // Tabs, trailing blanks, Latin-1 and UTF-8 bytes, all three line ends and no final one.
    const std::string before = "// \xE9quipage\t\r\n[fltsim.0]  \ntitle=Beech \xC3\xA9t\xE9\r\r\n";
    const std::string after = "[GeneralEngineData]\t\r\nengine_type = 1  \r\n; end";
    writeCfg(before + "[Weight_And_Balance]\r\nstation_load.0 = 1, 2, 3, 4\n\r\n" + after);
    ASSERT_TRUE(readcfg(session));
    session.state.stationweight[2] = 189.5f;
    session.state.loadweight = 189.5f;
    ASSERT_TRUE(writecfg(session));

    const std::string beforeCrLf = "// \xE9quipage\t\r\n[fltsim.0]  \r\ntitle=Beech \xC3\xA9t\xE9\r\n\r\n";
    const std::string afterCrLf = "[GeneralEngineData]\t\r\nengine_type = 1  \r\n; end\r\n";
    const std::string saved = TempDir::readFile(cfg());
    EXPECT_EQ(saved, beforeCrLf + "[Weight_And_Balance]\r\n" + block() + afterCrLf);
    EXPECT_NE(saved.find("station_load.2 = 190, 5.3, -1.1, 0.0 // Passenger 1\r\n"), std::string::npos);
    EXPECT_EQ(TempDir::readFile(stations()), "4,16950,16500,10615,15000,3578\r\n3,1,1,2,0,1,0\r\n"
                                             "\"Pilot\",13.5,-2,0,0\r\n\"Co-pilot\",13.5,2,0,0\r\n"
                                             "\"Passenger 1\",5.25,-1.1,0,189.5\r\n\"Cargo\",-17,0,0,0\r\n");

    // A second save, a day later, changes the date and nothing else.
    clock.set(Date{2001, 3, 8});
    ASSERT_TRUE(writecfg(session));
    std::string expected = saved;
    const std::string oldDate = "on 7 Mar 2001\r\n";
    expected.replace(expected.find(oldDate), oldDate.size(), "on 8 Mar 2001\r\n");
    EXPECT_EQ(TempDir::readFile(cfg()), expected);
    EXPECT_TRUE(session.messages.pending().empty());
}

TEST_F(CfgFileTest, TheFirstSectionIsFoundAndReplacedWhereverItStands)
{
    struct Case {
        const char* what;
        std::string file;
        int sectionlines;
        std::string savedBefore, savedAfter; // the saved file around the block
    };
    const Case cases[] = {
        {"section last", "a\r\n[WEIGHT_AND_BALANCE]\r\nold 1\r\n\r\nold 2", 4,
         "a\r\n[WEIGHT_AND_BALANCE]\r\n", ""},
        {"lower case", "[weight_and_balance]\r\nold\r\n[next]\r\nb\r\n", 2, "[weight_and_balance]\r\n",
         "[next]\r\nb\r\n"},
        {"no section", "a\r\nb\r\n", 0, "a\r\nb\r\n\r\n[WEIGHT_AND_BALANCE]\r\n", ""},
        {"two sections", "[WEIGHT_AND_BALANCE]\r\nold\r\n[WEIGHT_AND_BALANCE]\r\nkept\r\n[x]\r\n", 2,
         "[WEIGHT_AND_BALANCE]\r\n", "[WEIGHT_AND_BALANCE]\r\nkept\r\n[x]\r\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        writeCfg(c.file);
        ASSERT_TRUE(readcfg(session));
        EXPECT_EQ(session.state.sectionlines, c.sectionlines);
        if (c.sectionlines == 0) {
            EXPECT_EQ(session.state.cfgcount, 4) << "the file's lines, an empty line and the header";
            EXPECT_EQ(session.state.cfglines[2], "");
        }
        ASSERT_TRUE(writecfg(session));
        EXPECT_EQ(TempDir::readFile(cfg()), c.savedBefore + block() + c.savedAfter);
    }
}

TEST_F(CfgFileTest, AHandEditedStationFileIsShownAndWritten)
{
    writeCfg("[WEIGHT_AND_BALANCE]\r\n");
    // Saved by Notepad: a UTF-8 mark, LF line ends, blanks, a renamed station, one spread over two lines.
    writeStations(
        "\xEF\xBB\xBF"
        "4, 16950,16500,10615,15000,3578\n3,1,1,2,0,1,0\n\"Pilot\",13.5,-2,0,170\n"
        "\"First Officer\" , 13.5,2,0\n170.25\n\"Passenger 1\",5.0004,-1.1,0,0\n\"Cargo\",-17,0,0,100");
    ASSERT_TRUE(readcfg(session));
    EXPECT_EQ(session.state.stationname[1], "First Officer");
    EXPECT_FLOAT_EQ(session.state.loadweight, 440.25f);
    ASSERT_TRUE(writecfg(session));
    EXPECT_NE(TempDir::readFile(cfg()).find("station_load.1 = 170, 13.5, 2.0, 0.0 // First Officer\r\n"),
              std::string::npos);
    EXPECT_EQ(TempDir::readFile(stations()), "4,16950,16500,10615,15000,3578\r\n3,1,1,2,0,1,0\r\n"
                                             "\"Pilot\",13.5,-2,0,170\r\n\"First Officer\",13.5,2,0,170.2\r\n"
                                             "\"Passenger 1\",5,-1.1,0,0\r\n\"Cargo\",-17,0,0,100\r\n");
}

TEST_F(CfgFileTest, AFailedReadTellsTheUserAndNothingIsWrittenThenOrAtASave)
{
    const std::string lines301 = [] {
        std::string text = "[WEIGHT_AND_BALANCE]\r\n";
        for (int i = 1; i < 301; ++i)
            text += "line\r\n";
        return text;
    }();
    struct Case {
        const char* what;
        std::string cfg;      // empty: no aircraft.cfg
        std::string stations; // empty: no station file
        std::string said;     // part of the message
    };
    const Case cases[] = {
        {"missing aircraft.cfg", "", "", "aircraft.cfg\" does not exist"},
        {"302 lines", lines301 + "one more", "", "aircraft.cfg\" has 302 lines, more than the 301"},
        {"300 lines, no section", std::string(300, '\n'), "", "has 300 lines, more than the 299"},
        {"text for a number", "x",
         "4,16950,16500,10615,15000,3578\r\n3,1,1,2,0,1,0\r\n\"Pilot\",13.5,-2,zero,0\r\n",
         ".cfg\" cannot be used: line 3: the z position of station 0 should be a number but is \"zero\""},
        {"ends early", "x", "4,16950,16500,10615,15000,3578\r\n3,1,1,2,0,1,0\r\n\"Pilot\",13.5,-2,0,0\r\n",
         "line 3: the file ends before the label of station 1"},
        {"too many stations", "x", "4,16950,16500,10615,15000,3578\r\n300,202,1,2,0,1,0\r\n",
         "line 2: it lists 300 person and 202 cargo stations, more than the 501"},
        {"data left over", "x", kStationFile + "\"Extra\",1,2,3,4\r\n", "line 7: there is more data"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        fs::remove_all(dir.path() / "fs2000");
        fs::remove(stations());
        if (!c.cfg.empty())
            writeCfg(c.cfg);
        if (!c.stations.empty())
            writeStations(c.stations);
        session.state.stationweight[1] = 170; // left by an earlier type
        session.state.cfgsource.valid = true;
        const auto filesBefore = allFiles();

        EXPECT_FALSE(readcfg(session));
        const auto told = session.messages.take();
        ASSERT_EQ(told.size(), 1u);
        EXPECT_NE(told[0].find(c.said), std::string::npos) << told[0];
        EXPECT_EQ(session.state.stationweight[1], 0);
        EXPECT_EQ(session.state.loadweight, 0);
        EXPECT_EQ(session.state.stationname[1], "Co-pilot");
        EXPECT_EQ(session.state.cfgcount, 0);

        EXPECT_FALSE(writecfg(session));
        EXPECT_EQ(session.messages.take().size(), 1u);
        EXPECT_EQ(allFiles(), filesBefore);
    }
}

TEST_F(CfgFileTest, AFailedSaveKeepsTheOldFilesAndTellsWhy)
{
    writeCfg("a\r\n[WEIGHT_AND_BALANCE]\r\n");
    ASSERT_TRUE(readcfg(session));
    session.state.stationweight[0] = 170;
    const auto filesBefore = allFiles();

    fs::permissions(cfg(), fs::perms::owner_write, fs::perm_options::remove);
    EXPECT_FALSE(writecfg(session));
    fs::permissions(cfg(), fs::perms::owner_write, fs::perm_options::add);

    session.files.failWritesAfter(10);
    EXPECT_FALSE(writecfg(session));
    session.files.failWritesAfter(std::nullopt);

    type = "DHC-8-300"; // set up, but not read
    EXPECT_FALSE(writecfg(session));
    type = kType;
    session.state.menufolder[0] = "beech2"; // moved in the configuration dialog since the read
    EXPECT_FALSE(writecfg(session));

    const auto told = session.messages.take();
    ASSERT_EQ(told.size(), 4u);
    EXPECT_NE(told[0].find("aircraft.cfg\" is read-only"), std::string::npos) << told[0];
    EXPECT_NE(told[1].find("the old file was kept"), std::string::npos) << told[1];
    EXPECT_NE(told[2].find("dash8"), std::string::npos) << told[2];
    EXPECT_NE(told[3].find("beech2"), std::string::npos) << told[3];
    EXPECT_EQ(allFiles(), filesBefore);
}

TEST_F(CfgFileTest, AFileChangedByAnotherProgramIsReadAgainBeforeSaving)
{
    writeCfg("a\r\n[WEIGHT_AND_BALANCE]\r\nold\r\n[b]\r\n");
    ASSERT_TRUE(readcfg(session));
    writeCfg("a changed\r\n[WEIGHT_AND_BALANCE]\r\nold\r\nolder\r\n[b]\r\nnew line\r\n");
    ASSERT_TRUE(writecfg(session));
    EXPECT_EQ(TempDir::readFile(cfg()),
              "a changed\r\n[WEIGHT_AND_BALANCE]\r\n" + block() + "[b]\r\nnew line\r\n");
    EXPECT_EQ(session.messages.take().size(), 1u);
    EXPECT_EQ(TempDir::readFile(backup()), "a\r\n[WEIGHT_AND_BALANCE]\r\nold\r\n[b]\r\n");
}

TEST_F(CfgFileTest, AStationFileThatCannotBeCreatedIsReportedButTheReadStands)
{
    writeCfg("[WEIGHT_AND_BALANCE]\r\n");
    session.programFolder = dir.path() / "no such folder";
    EXPECT_TRUE(readcfg(session));
    const auto told = session.messages.take();
    ASSERT_EQ(told.size(), 1u);
    EXPECT_NE(told[0].find("station file could not be created"), std::string::npos) << told[0];
    EXPECT_FALSE(writecfg(session)) << "the station file's folder is still missing at the save";
    EXPECT_NE(TempDir::readFile(cfg()).find("station_load.3"), std::string::npos);
}

} // namespace
} // namespace quillet
