// Kills a program that saves in a loop at random moments, and looks at what it leaves on the disk.

#include "ChildProcess.h"
#include "SaveLoopRig.h"
#include "TempDir.h"
#include "cfgfile/inputoutput.h"

#include <chrono>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <random>
#include <thread>

namespace fs = std::filesystem;

namespace quillet {
namespace {

constexpr int kKills = 50;

using Versions = std::map<std::string, std::string>; // name, bytes

void prepare(const fs::path& folder)
{
    fs::create_directories(folder / "program");
    fs::create_directories(SaveLoopRig::cfg(folder).parent_path());
    std::ofstream(SaveLoopRig::cfg(folder), std::ios::binary) << SaveLoopRig::original();
}

// The name of the complete version the file holds, "missing", or what else it is.
std::string which(const fs::path& file, const Versions& versions)
{
    std::error_code ec;
    if (!fs::exists(fs::symlink_status(file, ec)))
        return "missing";
    const std::string bytes = TempDir::readFile(file);
    for (const auto& [name, version] : versions) {
        if (version == bytes)
            return name;
    }
    return "broken (" + std::to_string(bytes.size()) + " bytes)";
}

// Our temporary files anywhere below the folder.
int temporaries(const fs::path& folder)
{
    int count = 0;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        count += entry.path().filename().string().ends_with(".quillet-new");
    return count;
}

TEST(KillDuringSave, EveryFileIsAlwaysAnOldOrANewCompleteFile)
{
    // Every complete version, made in this process by the same steps as the child's.
    Versions cfg{{"original", SaveLoopRig::original()}};
    Versions stations;
    Versions backup{{"original", SaveLoopRig::original()}};
    {
        TempDir dir;
        prepare(dir.path());
        SaveLoopRig rig{dir.path()};
        ASSERT_TRUE(readcfg(rig.session));
        stations["nobody aboard"] = TempDir::readFile(SaveLoopRig::stations(dir.path()));
        for (int round : {0, 1}) {
            const std::string name = round == 0 ? "load A" : "load B";
            rig.load(round);
            ASSERT_TRUE(writecfg(rig.session));
            cfg[name] = TempDir::readFile(SaveLoopRig::cfg(dir.path()));
            stations[name] = TempDir::readFile(SaveLoopRig::stations(dir.path()));
        }
    }

    // How long the child takes to its first save on this machine; kills then fall anywhere from its
    // start, through the backup and the first save, to later saves.
    std::chrono::microseconds firstSave{};
    {
        TempDir dir;
        prepare(dir.path());
        const auto start = std::chrono::steady_clock::now();
        ChildProcess child(QUILLET_SAVE_LOOP, dir.path());
        while (which(SaveLoopRig::cfg(dir.path()), cfg) == "original") {
            ASSERT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20))
                << "the child never saved";
            std::this_thread::sleep_for(std::chrono::microseconds(100));
        }
        firstSave =
            std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start);
        ASSERT_TRUE(child.kill()) << "the child stopped saving by itself";
    }

    // The same delays every run; where a kill lands still depends on the machine, and every place must
    // leave whole files.
    std::mt19937 generator(20010307);
    std::uniform_int_distribution<long long> delay(0, 2 * firstSave.count());
    std::map<std::string, int> seen;
    for (int kill = 0; kill < kKills; ++kill) {
        TempDir dir;
        prepare(dir.path());
        {
            ChildProcess child(QUILLET_SAVE_LOOP, dir.path());
            std::this_thread::sleep_for(std::chrono::microseconds(delay(generator)));
            ASSERT_TRUE(child.kill()) << "the child stopped saving by itself";
        }
        const std::string onDisk[] = {which(SaveLoopRig::cfg(dir.path()), cfg),
                                      which(SaveLoopRig::stations(dir.path()), stations),
                                      which(SaveLoopRig::backup(dir.path()), backup)};
        SCOPED_TRACE("kill " + std::to_string(kill) + ": aircraft.cfg " + onDisk[0] + ", station file " +
                     onDisk[1] + ", backup " + onDisk[2]);
        EXPECT_TRUE(cfg.contains(onDisk[0]));
        EXPECT_TRUE(onDisk[1] == "missing" || stations.contains(onDisk[1]));
        EXPECT_TRUE(onDisk[2] == "missing" || backup.contains(onDisk[2]));
        if (onDisk[0] != "original") {
            EXPECT_EQ(onDisk[2], "original") << "the original aircraft.cfg must be kept somewhere";
        }
        ++seen[onDisk[0] + " / " + onDisk[1] + " / " + onDisk[2]];

        // What the kill left is read without complaint, and the next save clears its temporary files.
        SaveLoopRig next{dir.path()};
        EXPECT_TRUE(readcfg(next.session));
        EXPECT_TRUE(next.session.messages.pending().empty());
        next.load(kill);
        EXPECT_TRUE(writecfg(next.session));
        EXPECT_EQ(temporaries(dir.path()), 0);
    }

    std::cout << "First save after " << firstSave.count() << " us; kills within twice that. "
              << "aircraft.cfg / station file / backup after each kill:\n";
    for (const auto& [state, count] : seen)
        std::cout << "  " << count << " x " << state << '\n';
}

} // namespace
} // namespace quillet
