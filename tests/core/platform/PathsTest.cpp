#include "platform/Paths.h"

#include "TempDir.h"

#include <fstream>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace quillet {
namespace {

TEST(CaseInsensitivePaths, FindsFilesWrittenWithBackslashesInAnyCase)
{
    TempDir dir;
    dir.write("Sim/Aircraft/B737_300/AIRCRAFT.CFG", "x");
    const std::string sim = dir.path().string() + "\\sim";

    auto found = findPath(sim + "\\aircraft\\b737_300\\aircraft.cfg");
    ASSERT_TRUE(found);
#ifdef _WIN32
    // The file system ignores letter case itself, and the name comes back as typed.
    EXPECT_EQ(found->filename(), "aircraft.cfg");
#else
    EXPECT_EQ(found->filename(), "AIRCRAFT.CFG");
#endif
    EXPECT_TRUE(fileExists(sim + "/AIRCRAFT/b737_300/Aircraft.Cfg"));
    EXPECT_FALSE(fileExists(sim + "\\aircraft\\b737_300")) << "a folder is not a file";
    EXPECT_FALSE(fileExists(sim + "\\aircraft\\b737_200\\aircraft.cfg"));
    EXPECT_FALSE(fileExists(sim + "\\aircraft\\b737_300\\aircraft.cfg.bak"));
    // A relative path starts from the base.
    EXPECT_TRUE(fileExists(".\\SIM\\aircraft\\B737_300\\aircraft.cfg", dir.path()));
    EXPECT_FALSE(fileExists("sim\\aircraft\\b737_300\\emb120.gif", dir.path()));
}

TEST(CaseInsensitivePaths, ExactNamePreferredOverOtherCase)
{
    TempDir dir;
    dir.write("a/file.txt", "lower");
    dir.write("a/FILE.TXT", "upper");
    EXPECT_EQ(findPath("a\\FILE.TXT", dir.path())->filename(), "FILE.TXT");
    EXPECT_EQ(findPath("a\\file.txt", dir.path())->filename(), "file.txt");
#ifdef _WIN32
    EXPECT_EQ(dir.read("a/file.txt"), "upper") << "one file under two names";
#else
    EXPECT_EQ(dir.read("a/file.txt"), "lower");
#endif
}

TEST(CaseInsensitivePaths, ResolveKeepsExistingPartsAndAppendsTheRest)
{
    TempDir dir;
    dir.write("Data/old.cfg", "x");
    const fs::path added = resolvePath("data\\new.cfg", dir.path());
    EXPECT_EQ(added.filename(), "new.cfg");
    EXPECT_TRUE(fs::equivalent(added.parent_path(), dir.path() / "Data"));
    const fs::path old = resolvePath("DATA\\OLD.CFG", dir.path());
    EXPECT_TRUE(fs::equivalent(old, dir.path() / "Data" / "old.cfg"));
#ifndef _WIN32
    // Elsewhere the parts are spelt as on the disk, so that a second folder of another case is never made.
    EXPECT_EQ(added, dir.path() / "Data" / "new.cfg");
    EXPECT_EQ(old, dir.path() / "Data" / "old.cfg");
#endif
}

// A user called Zoë: the name is UTF-8 in the program and reaches the system intact.
TEST(CaseInsensitivePaths, FoldersWithNonAsciiNamesAreFound)
{
    TempDir dir;
    const fs::path sim = dir.path() / u8"Zo\u00EB" / "FS2000";
    fs::create_directories(sim);
    std::ofstream(sim / "fs2000.exe") << "x";
    const std::string typed = utf8Of(dir.path()) + "\\zo\xC3\xAB\\fs2000\\";

    const auto found = findPath(typed + "FS2000.EXE");
    ASSERT_TRUE(found);
    EXPECT_TRUE(fs::equivalent(*found, sim / "fs2000.exe"));
    EXPECT_NE(displayPath(*found).find("o\xC3\xAB"), std::string::npos) << displayPath(*found);
    EXPECT_TRUE(fs::equivalent(resolvePath(typed + "aircraft.cfg").parent_path(), sim));
    EXPECT_EQ(utf8Of(pathFromUtf8("Zo\xC3\xAB")), "Zo\xC3\xAB");
}

TEST(CaseInsensitivePaths, DriveLettersNameADriveOnlyOnWindows)
{
#ifdef _WIN32
    TempDir dir;
    dir.write("FS2000/fs2000.exe", "x");
    std::string typed = utf8Of(dir.path()) + "\\fs2000\\FS2000.EXE";
    ASSERT_EQ(typed[1], ':');
    typed[0] = static_cast<char>(typed[0] ^ 0x20); // the drive letter in the other case
    EXPECT_TRUE(fileExists(typed));
#else
    EXPECT_FALSE(findPath("C:\\program files\\microsoft games\\fs2000\\fs2000.exe"));
#endif
    EXPECT_FALSE(findPath(""));
}

} // namespace
} // namespace quillet
