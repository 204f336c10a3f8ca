#include "platform/Paths.h"

#include "TempDir.h"

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
    EXPECT_EQ(found->filename(), "AIRCRAFT.CFG");
    EXPECT_TRUE(fileExists(sim + "/AIRCRAFT/b737_300/Aircraft.Cfg"));
    EXPECT_FALSE(fileExists(sim + "\\aircraft\\b737_300")) << "a folder is not a file";
    EXPECT_FALSE(fileExists(sim + "\\aircraft\\b737_200\\aircraft.cfg"));
    EXPECT_FALSE(fileExists(sim + "\\aircraft\\b737_300\\aircraft.cfg.bak"));
}

TEST(CaseInsensitivePaths, RelativePathsStartFromTheBase)
{
    TempDir dir;
    dir.write("Beech.gif", "x");
    EXPECT_TRUE(fileExists("beech.gif", dir.path()));
    EXPECT_TRUE(fileExists(".\\BEECH.GIF", dir.path()));
    EXPECT_FALSE(fileExists("emb120.gif", dir.path()));
}

TEST(CaseInsensitivePaths, ExactNamePreferredOverOtherCase)
{
    TempDir dir;
    dir.write("a/file.txt", "lower");
    dir.write("a/FILE.TXT", "upper");
    EXPECT_EQ(findPath("a\\FILE.TXT", dir.path())->filename(), "FILE.TXT");
    EXPECT_EQ(findPath("a\\file.txt", dir.path())->filename(), "file.txt");
}

TEST(CaseInsensitivePaths, ResolveKeepsExistingPartsAndAppendsTheRest)
{
    TempDir dir;
    dir.write("Data/old.cfg", "x");
    EXPECT_EQ(resolvePath("data\\new.cfg", dir.path()), dir.path() / "Data" / "new.cfg");
    EXPECT_EQ(resolvePath("DATA\\OLD.CFG", dir.path()), dir.path() / "Data" / "old.cfg");
}

TEST(CaseInsensitivePaths, WindowsDrivePathsAreNotFoundOnOtherSystems)
{
#ifndef _WIN32
    EXPECT_FALSE(findPath("C:\\program files\\microsoft games\\fs2000\\fs2000.exe"));
#endif
    EXPECT_FALSE(findPath(""));
}

} // namespace
} // namespace quillet
