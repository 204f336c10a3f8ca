#include "cfgfile/inputoutput.h"

#include "Golden.h"
#include "Links.h"
#include "SaveLoopRig.h"
#include "TempDir.h"
#include "cfgfile/AircraftFile.h"
#include "cfgfile/WeightBlock.h"
#include "platform/RecordingFileSystem.h"

#include <gtest/gtest.h>
#include <map>

namespace fs = std::filesystem;

namespace quillet {
namespace {

const std::string kType = "Beech 1900D";

const std::string kHead = "4,16950,16500,10615,15000,3578\r\n3,1,1,2,0,1,0\r\n";

// The small type's station file as the program writes it, by default with nobody aboard.
std::string stationFile(const std::string& pilot = "0", const std::string& passenger = "0")
{
    return kHead + "\"Pilot\",13.5,-2,0," + pilot +
           "\r\n\"Co-pilot\",13.5,2,0,0\r\n\"Passenger 1\",5.25,-1.1,0," + passenger +
           "\r\n\"Cargo\",-17,0,0,0\r\n";
}

std::string linesOf(const std::string& line, int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += line + "\r\n";
    return text;
}

// The small type in a simulator folder, a second type in the menu, and a disk that can be made to fail.
class CfgFileTest : public ::testing::Test {
protected:
    CfgFileTest()
    {
        fs::create_directories(session.programFolder);
        session.files = Files(disk);
        session.state.nmenu = 2;
        session.state.menutype[1] = "DHC-8-300";
        session.state.menufolder[1] = "dash8";
        session.currentType = [this] { return type; };
    }

    fs::path cfg() const { return SaveLoopRig::cfg(dir.path()); }
    fs::path backup() const { return SaveLoopRig::backup(dir.path()); }
    fs::path stations() const { return SaveLoopRig::stations(dir.path()); }
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

    // Takes the waiting messages into `said`, which a test compares with a golden file at its end.
    std::size_t hear()
    {
        const auto told = session.messages.take();
        said.insert(said.end(), told.begin(), told.end());
        return told.size();
    }

    TempDir dir;
    std::vector<std::string> said;
    RecordingFileSystem disk{systemFiles()};
    SaveLoopRig rig{dir.path()};
    Session& session = rig.session;
    FixedClock& clock = rig.clock;
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
    EXPECT_EQ(TempDir::readFile(stations()), stationFile());
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
#ifdef _WIN32
    EXPECT_EQ(dir.read("fs2000/aircraft/dash8/aircraft.cfg.bak"), "theirs") << "one file: the backup exists";
#else
    EXPECT_EQ(dir.read("fs2000/aircraft/dash8/aircraft.cfg.bak"), "x");
#endif

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
    EXPECT_EQ(TempDir::readFile(stations()), stationFile("0", "189.5"));

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
        {"blanks before both headers, a comment after one",
         "  [weight_and_balance] // ours\r\nold\r\n\t[next]\r\n", 2, "  [weight_and_balance] // ours\r\n",
         "\t[next]\r\n"},
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

TEST_F(CfgFileTest, TwoMenuEntriesOfOneTypeUseTheFolderOfTheLast)
{
    LoadState& s = session.state;
    s.nmenu = 3;
    s.menutype[2] = kType;
    s.menufolder[2] = "beech_b";
    writeCfg("[WEIGHT_AND_BALANCE]\r\nfirst\r\n");
    dir.write("fs2000/aircraft/beech_b/aircraft.cfg", "[WEIGHT_AND_BALANCE]\r\nlast\r\n");

    ASSERT_TRUE(readcfg(session));
    EXPECT_EQ(s.cfglines[1], "last");
    EXPECT_FALSE(fs::exists(backup()));
    EXPECT_EQ(dir.read("fs2000/aircraft/beech_b/aircraft.cfg.bak"), "[WEIGHT_AND_BALANCE]\r\nlast\r\n");
    ASSERT_TRUE(writecfg(session));
    EXPECT_EQ(TempDir::readFile(cfg()), "[WEIGHT_AND_BALANCE]\r\nfirst\r\n");
    EXPECT_EQ(dir.read("fs2000/aircraft/beech_b/aircraft.cfg"), "[WEIGHT_AND_BALANCE]\r\n" + block());
}

// Hand edits a save would lose or spoil are refused by their line too.
TEST_F(CfgFileTest, AFailedReadTellsTheUserAndNothingIsWrittenThenOrAtASave)
{
    const std::string lines301 = "[WEIGHT_AND_BALANCE]\r\n" + linesOf("line", 300);
    const auto pilot = [](const std::string& line) {
        return kHead + line +
               "\r\n\"Co-pilot\",13.5,2,0,0\r\n\"Passenger 1\",5.25,-1.1,0,0\r\n\"Cargo\",-17,0,0,0\r\n";
    };
    // An aircraft.cfg two folders above the simulator's aircraft folder.
    dir.write("outside/aircraft.cfg", "[WEIGHT_AND_BALANCE]\r\n");
    struct Case {
        const char* what;
        std::optional<std::string> cfg; // none: no aircraft.cfg
        std::string stations;           // empty: no station file
        std::string folder = "";        // of a last entry of the type, which is the one used
    };
    const Case cases[] = {
        {"missing aircraft.cfg", std::nullopt, ""},
        {"empty aircraft.cfg", "", stationFile()},
        {"302 lines", lines301 + "one more", ""},
        {"300 lines, no section", std::string(300, '\n'), ""},
        {"text for a number", "x", kHead + "\"Pilot\",13.5,-2,zero,0\r\n"},
        {"ends early", "x", kHead + "\"Pilot\",13.5,-2,0,0\r\n"},
        {"too many stations", "x", "4,16950,16500,10615,15000,3578\r\n300,202,1,2,0,1,0\r\n"},
        {"data left over", "x", stationFile() + "\"Extra\",1,2,3,4\r\n"},
        {"UTF-16", std::string("\xFF\xFE[\0W\0]\0\r\0\n\0", 12), ""},
        {"NUL bytes", std::string("[fltsim.0]\r\nti\0tle=x\r\n", 21), ""},
        {"NUL in the station file", "x", std::string("4,16950\0", 9)},
        {"too heavy", "x", stationFile("99999999")},
        {"far too heavy", "x", stationFile("1e30")},
        {"a bracket in a label", "x", pilot("\"Pilot [left]\",13.5,-2,0,0")},
        {"a quote in a label", "x", pilot("\"Seat \"3A\"\",13.5,-2,0,0")},
        {"a path with backslashes", "x", "", "..\\..\\..\\outside"},
        {"a path with slashes", "x", "", "../../../outside"},
        {"an absolute path", "x", "", (dir.path() / "outside").string()},
        {"the folder above", "x", "", ".."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        fs::remove_all(dir.path() / "fs2000");
        fs::remove(stations());
        if (c.cfg)
            writeCfg(*c.cfg);
        if (!c.stations.empty())
            writeStations(c.stations);
        session.state.nmenu = c.folder.empty() ? 2 : 3;
        session.state.menutype[2] = kType;
        session.state.menufolder[2] = c.folder;
        session.state.stationweight[1] = 170; // left by an earlier type
        session.state.cfgsource.valid = true;
        const auto filesBefore = allFiles();

        EXPECT_FALSE(readcfg(session));
        EXPECT_EQ(hear(), 1u);
        EXPECT_EQ(session.state.stationweight[1], 0);
        EXPECT_EQ(session.state.loadweight, 0);
        EXPECT_EQ(session.state.stationname[1], "Co-pilot");
        EXPECT_EQ(session.state.cfgcount, 0);

        EXPECT_FALSE(writecfg(session));
        EXPECT_EQ(hear(), 1u);
        EXPECT_EQ(allFiles(), filesBefore);
    }
    expectGoldenMessages("cfg-read-refused.txt", said, dir.path());
}

// Both files are checked before either is written; a save refused keeps both as they were.
TEST_F(CfgFileTest, AFailedSaveKeepsTheOldFilesAndTellsWhy)
{
    writeCfg("a\r\n[WEIGHT_AND_BALANCE]\r\n");
    ASSERT_TRUE(readcfg(session));
    session.state.stationweight[0] = 170;
    session.state.loadweight = 170;
    const auto filesBefore = allFiles();

    fs::permissions(cfg(), fs::perms::owner_write, fs::perm_options::remove);
    EXPECT_FALSE(writecfg(session));
    fs::permissions(cfg(), fs::perms::owner_write, fs::perm_options::add);
    disk.failWritesAfter(10);
    EXPECT_FALSE(writecfg(session));
    disk.failWritesAfter(std::nullopt);
    type = "DHC-8-300"; // set up, but not read
    EXPECT_FALSE(writecfg(session));
    type = kType;
    session.state.menufolder[0] = "beech2"; // moved in the configuration dialog since the read
    EXPECT_FALSE(writecfg(session));
    session.state.menufolder[0] = "beech";
    fs::permissions(stations(), fs::perms::owner_write, fs::perm_options::remove);
    EXPECT_FALSE(writecfg(session));
    fs::permissions(stations(), fs::perms::owner_write, fs::perm_options::add);
    fs::rename(stations(), dir.path() / "stations.saved");
    fs::create_directory(stations());
    EXPECT_FALSE(writecfg(session));
    fs::remove(stations());
    fs::rename(dir.path() / "stations.saved", stations());
    // A weight the reader would refuse: the next read would lock the type's load out.
    for (const float typed : {-40.0f, 16951.0f}) {
        session.state.stationweight[3] = typed;
        EXPECT_FALSE(writecfg(session));
    }
    session.state.stationweight[3] = 0;
    EXPECT_EQ(allFiles(), filesBefore);

    EXPECT_EQ(hear(), 8u);
    expectGoldenMessages("cfg-save-refused.txt", said, dir.path());

    // What no check can foresee: the station file cannot be renamed into place.
    disk.failAfter(FileStep::Rename, 1);
    EXPECT_FALSE(writecfg(session));
    EXPECT_EQ(TempDir::readFile(cfg()), "a\r\n[WEIGHT_AND_BALANCE]\r\n" + block());
    EXPECT_EQ(TempDir::readFile(stations()), stationFile());
    std::string notRenamed = session.messages.take().at(0);
    const auto why = notRenamed.find("could not be replaced: ") + 23; // the system's words differ
    notRenamed.erase(why, notRenamed.find("; the old file was kept.") - why);
    expectGoldenMessages("cfg-station-file-not-renamed.txt", {notRenamed}, dir.path());
}

// A save is durable at every moment only in this order: each file written and flushed, both renamed,
// then the folders that record the renames flushed.
TEST_F(CfgFileTest, ASaveFlushesFilesBeforeRenamingAndFoldersAfter)
{
    writeCfg("a\r\n[WEIGHT_AND_BALANCE]\r\n");
    ASSERT_TRUE(readcfg(session));
    disk.steps.clear();
    ASSERT_TRUE(writecfg(session));

    const std::map<FileStep, std::string> verbs{{FileStep::Write, "write "},
                                                {FileStep::Sync, "sync "},
                                                {FileStep::Rename, "rename to "},
                                                {FileStep::SyncFolder, "sync folder "}};
    std::vector<std::string> order;
    for (const RecordedStep& step : disk.steps) {
        const std::string name = step.path.filename().string();
        const bool temporary = isTemporaryOf(name, "aircraft.cfg") || isTemporaryOf(name, kType + ".cfg");
        if (verbs.contains(step.step))
            order.push_back(verbs.at(step.step) +
                            (temporary ? "temporary " + name.substr(1, name.find(".cfg") + 3) : name));
    }
    expectGoldenMessages("cfg-save-order.txt", order, dir.path());
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
    EXPECT_EQ(hear(), 1u);

    // Still missing at the save: known before aircraft.cfg is touched, so neither file is written.
    EXPECT_FALSE(writecfg(session));
    EXPECT_EQ(TempDir::readFile(cfg()), "[WEIGHT_AND_BALANCE]\r\n");
    EXPECT_EQ(hear(), 1u);
    expectGoldenMessages("cfg-no-program-folder.txt", said, dir.path());
}

TEST_F(CfgFileTest, TheOneTimeBackupIsWholeOrAbsentAndOnlyAPlainFileCounts)
{
    const std::string original =
        "[fltsim.0]\r\ntitle=Beech\r\n[WEIGHT_AND_BALANCE]\r\nstation_load.0 = 1\r\n";
    writeCfg(original);
    const auto filesBefore = allFiles();

    // The disk fills up while the backup is written.
    disk.failWritesAfter(10);
    EXPECT_FALSE(readcfg(session));
    disk.failWritesAfter(std::nullopt);
    EXPECT_FALSE(writecfg(session));
    EXPECT_EQ(allFiles(), filesBefore) << "no backup, no temporary file, no station file";

    ASSERT_TRUE(readcfg(session));
    EXPECT_EQ(TempDir::readFile(backup()), original);

    // A folder, or a link to nothing, of the backup's name is no backup.
    fs::remove(backup());
    fs::create_directory(backup());
    EXPECT_FALSE(readcfg(session));
    EXPECT_EQ(hear(), 3u) << "the disk, the save, the folder";
    expectGoldenMessages("cfg-backup-refused.txt", said, dir.path());
    fs::remove(backup());
    const fs::path nowhere = dir.path() / "gone" / "aircraft.cfg.bak";
    QUILLET_LINK_OR_SKIP(nowhere, backup());
    EXPECT_FALSE(readcfg(session));
    expectGoldenMessages("cfg-backup-link.txt", session.messages.take(), dir.path());
    EXPECT_FALSE(fs::exists(dir.path() / "gone"));
    EXPECT_EQ(TempDir::readFile(cfg()), original);
}

TEST_F(CfgFileTest, ASaveThatWouldGrowTheFilePastWhatCanBeReadBackOrSpoilTheSectionWritesNothing)
{
    // 33 stations, as many as a 30-seat commuter: its block is 51 lines.
    session.state.cfgstations = 33;
    session.state.nstations = 32;
    for (int i = 0; i < 33; ++i)
        session.state.stationname[i] = "Seat " + std::to_string(i);
    // 100 lines, a 10-line section, then the given number of lines.
    const auto tenLineSection = [](int after) {
        return "[fltsim.0]\r\n" + linesOf("k=v", 99) + "[WEIGHT_AND_BALANCE]\r\n" + linesOf("old", 9) +
               "[next]\r\n" + linesOf("k=v", after);
    };
    struct Case {
        const char* what;
        std::string file;
        bool fits;
    };
    const Case cases[] = {
        {"271 lines, a 10-line section", tenLineSection(160), false},
        {"301 lines, a 2-line section", "[WEIGHT_AND_BALANCE]\r\nold\r\n[next]\r\n" + linesOf("k=v", 298),
         false},
        {"299 lines, no section", "[fltsim.0]\r\n" + linesOf("k=v", 298), false},
        {"260 lines, a 10-line section", tenLineSection(149), false},
        {"259 lines, a 10-line section: 301 saved", tenLineSection(148), true},
        // A section whose header or end is not a header line of its own.
        {"the header text in a comment first",
         "[fltsim.0]\r\n// see [WEIGHT_AND_BALANCE] below\r\n[WEIGHT_AND_BALANCE]\r\nold\r\n", false},
        {"a bracket in a comment ends the section",
         "[WEIGHT_AND_BALANCE]\r\n// reference datum relative to nose [3.4]\r\nstation_load.0 = "
         "1\r\n[next]\r\n",
         false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        writeCfg(c.file);
        ASSERT_TRUE(readcfg(session));
        const auto filesBefore = allFiles();
        if (c.fits) {
            ASSERT_TRUE(writecfg(session));
            EXPECT_EQ(countLines(TempDir::readFile(cfg())), 301u);
        } else {
            EXPECT_FALSE(writecfg(session));
            EXPECT_EQ(hear(), 1u);
            EXPECT_EQ(allFiles(), filesBefore);
        }
        // Either way the file reads again without complaint.
        EXPECT_TRUE(readcfg(session));
        EXPECT_TRUE(session.messages.pending().empty());
    }
    expectGoldenMessages("cfg-save-would-spoil.txt", said, dir.path());
}

TEST_F(CfgFileTest, HandEditedStationFilesAndLoadsUpToTheLimitsReadBackAsTheyWereWritten)
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
    EXPECT_EQ(TempDir::readFile(stations()),
              kHead + "\"Pilot\",13.5,-2,0,170\r\n\"First Officer\",13.5,2,0,170.2\r\n"
                      "\"Passenger 1\",5,-1.1,0,0\r\n\"Cargo\",-17,0,0,100\r\n");

    // A quote inside a label is written doubled; a station may weigh the whole take-off weight.
    const std::string file = kHead + "\"Seat \"\"3A\"\"\",13.5,-2,0,16950\r\n\"\"\"\",13.5,2,0,0\r\n"
                                     "\"Passenger 1\",5.25,-1.1,0,0\r\n\"Cargo\",-17,0,0,0\r\n";
    writeStations(file);
    ASSERT_TRUE(readcfg(session));
    EXPECT_EQ(session.state.stationname[0], "Seat \"3A\"");
    EXPECT_EQ(session.state.stationname[1], "\"");
    ASSERT_TRUE(writecfg(session));
    EXPECT_EQ(TempDir::readFile(stations()), file);
    EXPECT_NE(TempDir::readFile(cfg()).find("station_load.0 = 16950, 13.5, -2.0, 0.0 // Seat \"3A\"\r\n"),
              std::string::npos);

    // The most stations the program holds.
    std::string full = "4,16950,16500,10615,15000,3578\r\n500,1,1,2,0,1,0\r\n";
    for (int i = 0; i < 501; ++i)
        full += "\"S" + std::to_string(i) + "\",1,0,0,1\r\n";
    writeStations(full);
    ASSERT_TRUE(readcfg(session)) << session.messages.pending().front();
    EXPECT_EQ(session.state.stationname[500], "S500");
    EXPECT_EQ(session.state.loadweight, 501);
}

} // namespace
} // namespace quillet
