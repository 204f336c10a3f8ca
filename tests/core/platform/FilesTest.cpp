#include "platform/Files.h"

#include "Links.h"
#include "TempDir.h"
#include "platform/RecordingFileSystem.h"

#include <fstream>
#include <gtest/gtest.h>
#include <set>

namespace fs = std::filesystem;

namespace quillet {
namespace {

std::set<std::string> namesIn(const fs::path& folder)
{
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.insert(entry.path().filename().string());
    return names;
}

TEST(Files, ReadsBytesUnchangedAndRefusalsNameTheFile)
{
    TempDir dir;
    const std::string bytes("a\r\nb\xE9\0c\n", 8);
    auto read = Files().read(dir.write("f.cfg", bytes), 100);
    ASSERT_TRUE(read) << read.error().message;
    EXPECT_EQ(read.value(), bytes);

    const auto readOnly = dir.write("aircraft.cfg", "protected");
    fs::permissions(readOnly, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    struct Case {
        fs::path file;
        bool write; // a replace, else a read
        std::string said;
    };
    const Case cases[] = {
        {dir.write("big.cfg", std::string(101, 'x')), false, "big.cfg\" is too large"},
        {dir.path() / "none.cfg", false, "none.cfg\" does not exist"},
        {dir.path(), false, "is a folder"},
        {dir.path() / "no" / "such" / "aircraft.cfg", true, "does not exist"},
        {readOnly, true, "read-only"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.said);
        const std::string said = c.write ? Files().replace(c.file, "changed").error().message
                                         : Files().read(c.file, 100).error().message;
        EXPECT_NE(said.find(c.file.filename().string()), std::string::npos) << said;
        EXPECT_NE(said.find(c.said), std::string::npos) << said;
    }
    EXPECT_EQ(TempDir::readFile(readOnly), "protected");
}

// A full disk, and the one-time backup that is never replaced, are checked through the saves and reads
// of aircraft.cfg.
TEST(Files, PreparedFilesChangeNothingUntilCommitted)
{
    TempDir dir;
    const auto first = dir.write("aircraft.cfg", "old 1");
    const auto second = dir.write("station.cfg", "old 2");
    RecordingFileSystem disk{systemFiles()};
    Files files{disk};
    {
        auto a = files.prepare(first, "new 1");
        auto b = files.prepare(second, "new 2");
        ASSERT_TRUE(a && b);
        EXPECT_EQ(TempDir::readFile(first), "old 1");
        ASSERT_TRUE(files.commit(a.value()));
        EXPECT_EQ(TempDir::readFile(first), "new 1");
        // b is dropped without a commit.
    }
    EXPECT_EQ(TempDir::readFile(second), "old 2");
    EXPECT_EQ(namesIn(dir.path()), (std::set<std::string>{"aircraft.cfg", "station.cfg"}));

    disk.failAfter(FileStep::Rename, 0);
    auto c = files.prepare(second, "new 2");
    ASSERT_TRUE(c);
    EXPECT_FALSE(files.commit(c.value())) << "its message is checked through a save of aircraft.cfg";
    EXPECT_EQ(TempDir::readFile(second), "old 2");
    EXPECT_EQ(namesIn(dir.path()), (std::set<std::string>{"aircraft.cfg", "station.cfg"}));
}

TEST(Files, ReplaceKeepsThePermissionsOfTheOldFile)
{
    TempDir dir;
    const auto file = dir.write("aircraft.cfg", "x");
    const auto perms = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(file, perms);
    ASSERT_TRUE(Files().replace(file, "y"));
#ifdef _WIN32
    // Windows keeps only whether a file is read-only, and a writable file reads as writable by all.
    EXPECT_EQ(fs::status(file).permissions() & fs::perms::mask,
              fs::perms::all & ~fs::perms::owner_exec & ~fs::perms::group_exec & ~fs::perms::others_exec);
#else
    EXPECT_EQ(fs::status(file).permissions() & fs::perms::mask, perms);
#endif
}

// A user called Zoë: the folder's name reaches the system intact, for the temporary file too.
TEST(Files, ReplaceWritesExactlyAndLeavesNoTemporaryInAFolderWithANonAsciiName)
{
    TempDir dir;
    const fs::path folder = dir.path() / u8"Zo\u00EB \u03A9"; // the omega is in no Western code page
    fs::create_directories(folder);
    const fs::path file = folder / "aircraft.cfg";
    std::ofstream(file) << "old";
    Files files;
    ASSERT_TRUE(files.replace(file, "new\r\n"));
    ASSERT_TRUE(files.replace(folder / "fresh.cfg", ""));
    auto read = files.read(file, 100);
    ASSERT_TRUE(read) << read.error().message;
    EXPECT_EQ(read.value(), "new\r\n");
    EXPECT_EQ(TempDir::readFile(folder / "fresh.cfg"), "");
    EXPECT_EQ(namesIn(folder), (std::set<std::string>{"aircraft.cfg", "fresh.cfg"}));
}

TEST(Files, AFileAnotherProgramHoldsOpen)
{
    TempDir dir;
    const auto file = dir.write("aircraft.cfg", "old");
    std::ifstream reader(file, std::ios::binary); // as the simulator may hold it
    const auto saved = Files().replace(file, "new");
#ifdef _WIN32
    // Windows replaces no file that another program has open: the save is refused whole.
    ASSERT_FALSE(saved);
    EXPECT_NE(saved.error().message.find("the old file was kept"), std::string::npos)
        << saved.error().message;
    reader.close();
    EXPECT_EQ(TempDir::readFile(file), "old");
    EXPECT_EQ(namesIn(dir.path()), std::set<std::string>{"aircraft.cfg"}) << "no temporary file is left";
#else
    ASSERT_TRUE(saved);
    EXPECT_EQ(TempDir::readFile(file), "new") << "the reader keeps the old bytes, the name has the new ones";
#endif
}

TEST(Files, ALinkIsSavedThroughToItsTarget)
{
    TempDir dir;
    const auto target = dir.write("kept/Beech 1900D.cfg", "old");
    const auto link = dir.path() / "Beech 1900D.cfg";
    QUILLET_LINK_OR_SKIP("kept/Beech 1900D.cfg", link);
    ASSERT_TRUE(Files().replace(link, "new"));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(TempDir::readFile(target), "new");
    EXPECT_EQ(namesIn(target.parent_path()), std::set<std::string>{"Beech 1900D.cfg"});

    const auto dangling = dir.path() / "B737-300.cfg";
    fs::create_symlink("kept/none.cfg", dangling);
    auto written = Files().replace(dangling, "new");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().message,
              "\"" + dangling.string() + "\" is a link to \"kept/none.cfg\", which does not exist.");
    EXPECT_FALSE(fs::exists(dir.path() / "kept/none.cfg"));
}

TEST(Files, ASaveRemovesOnlyTheTemporariesItsFileLeftBehind)
{
    TempDir dir;
    const auto file = dir.write("aircraft.cfg", "old");
    const auto outside = dir.write("outside/keep.txt", "not ours");
    const std::set<std::string> foreign{
        ".aircraft.cfg.bak.0123456789abcdef.quillet-new", ".aircraft.cfg.0123.quillet-new",
        "aircraft.cfg.0123456789abcdef.quillet-new", ".aircraft.cfg.0123456789ABCDEF.quillet-new",
        ".aircraft.cfg.0123456789abcdeg.quillet-new"};
    for (const std::string& name : foreign)
        dir.write(name, "x");
    dir.write(".aircraft.cfg.00000000deadbeef.quillet-new", "left by a killed save");
    std::error_code noLink; // Windows may make none; the other leftovers are checked all the same
    fs::create_symlink(outside, dir.path() / ".aircraft.cfg.0123456789abcdef.quillet-new", noLink);
    fs::create_symlink(outside, dir.path() / "aircraft.cfg.quillet-new", noLink); // an older program's name
    fs::create_directory(dir.path() / ".aircraft.cfg.fedcba9876543210.quillet-new");

    ASSERT_TRUE(Files().replace(file, "new"));
    std::set<std::string> expected = foreign;
    expected.insert({"aircraft.cfg", "outside", ".aircraft.cfg.fedcba9876543210.quillet-new"});
    if (!noLink)
        expected.insert({".aircraft.cfg.0123456789abcdef.quillet-new", "aircraft.cfg.quillet-new"});
    EXPECT_EQ(namesIn(dir.path()), expected);
    EXPECT_EQ(TempDir::readFile(outside), "not ours");
    EXPECT_EQ(TempDir::readFile(file), "new");
    EXPECT_FALSE(fs::is_symlink(file));
}

} // namespace
} // namespace quillet
