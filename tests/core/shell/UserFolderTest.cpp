#include "shell/UserFolder.h"

#include "Golden.h"
#include "ShellFixture.h"
#include "platform/Paths.h"
#include "shell/Settings.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

// An installed copy's pictures, and a data home where the user's folder is to be made.
class UserFolder : public ::testing::Test {
protected:
    UserFolder()
    {
        installed.write("pictures/beech.gif", "GIF89a beech");
        installed.write("pictures/B737-300.gif", "GIF89a 737");
        installed.write("pictures/README", "not a picture");
    }

    std::filesystem::path pictures() const { return installed.path() / "pictures"; }
    std::filesystem::path folder() const { return home.path() / "share" / "quillet"; }
    Status prepare() const { return prepareUserFolder(folder(), pictures(), files); }
    std::string read(const char* name) const { return TempDir::readFile(folder() / name); }

    TempDir installed;
    TempDir home;
    Files files;
};

TEST_F(UserFolder, FirstStartMakesTheFolderWithThePicturesAndStarterSettings)
{
    ASSERT_TRUE(prepare()) << prepare().error().message;
    EXPECT_EQ(read("beech.gif"), "GIF89a beech");
    EXPECT_EQ(read("B737-300.gif"), "GIF89a 737");
    EXPECT_FALSE(std::filesystem::exists(folder() / "README")) << "only pictures are copied";
    expectGoldenFile("starter.ini", read("quillet.ini"));
    EXPECT_FALSE(std::filesystem::exists(temporaryFor(folder() / "beech.gif")));
}

TEST_F(UserFolder, LaterStartsKeepTheUsersFilesAndBringBackAMissingPicture)
{
    ASSERT_TRUE(prepare());
    std::filesystem::remove(folder() / "quillet.ini");
    home.write("share/quillet/QUILLET.INI", "my settings");
    home.write("share/quillet/beech.gif", "my own beech");
    home.write("share/quillet/B737-300.cfg", "my saved load");
    std::filesystem::remove(folder() / "B737-300.gif");

    ASSERT_TRUE(prepare());
    EXPECT_EQ(read("QUILLET.INI"), "my settings") << "found whatever its letter case";
#ifndef _WIN32
    EXPECT_FALSE(std::filesystem::exists(folder() / "quillet.ini"))
        << "no second settings file"; // one name on Windows
#endif
    EXPECT_EQ(read("beech.gif"), "my own beech");
    EXPECT_EQ(read("B737-300.cfg"), "my saved load");
    EXPECT_EQ(read("B737-300.gif"), "GIF89a 737");
}

TEST_F(UserFolder, AFolderThatCannotBeMadeIsNamed)
{
    home.write("share/quillet", "a file where the folder should be");
    const Status prepared = prepare();
    ASSERT_FALSE(prepared);
    EXPECT_NE(prepared.error().message.find(displayPath(folder())), std::string::npos)
        << prepared.error().message;
}

TEST_F(UserFolder, MissingInstalledPicturesAreNamedAndTheSettingsAreStillWritten)
{
    std::filesystem::remove_all(pictures());
    const Status prepared = prepare();
    ASSERT_FALSE(prepared);
    EXPECT_NE(prepared.error().message.find(displayPath(pictures())), std::string::npos)
        << prepared.error().message;
    expectGoldenFile("starter.ini", read("quillet.ini"));
}

// A new user's first start: the dialog opens, offering every type to be given its folder.
using UserFolderStart = ShellFixture;

TEST_F(UserFolderStart, TheStarterSettingsOfferEveryTypeInTheConfigurationDialog)
{
    dir.write("quillet.ini", starterSettings());
    form1.Form_Load();
    EXPECT_TRUE(session.messages.pending().empty()) << session.messages.pending().front();
    EXPECT_TRUE(form1.Combo1.items().empty());
    EXPECT_TRUE(form1.form4Window().visible);
    const auto& offered = form1.form4Window().Combo2.items();
    ASSERT_EQ(offered.size(), 14u);
    EXPECT_EQ(offered.front(), "Beech 1900D");
    EXPECT_EQ(offered.back(), "MD-90-30");
}

} // namespace
} // namespace quillet
