#include "shell/StartUp.h"

#include "TempDir.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace quillet {
namespace {

// XDG_DATA_HOME pointed at a folder of the test's own, and put back afterwards.
class StartUp : public ::testing::Test {
protected:
    StartUp() : m_saved(qgetenv("XDG_DATA_HOME")) { qputenv("XDG_DATA_HOME", home.path().string().c_str()); }
    ~StartUp() override { qputenv("XDG_DATA_HOME", m_saved); }

    std::optional<std::filesystem::path> start(const QStringList& arguments)
    {
        return startFolder(arguments, [this](const std::string& message) { told.push_back(message); });
    }

    TempDir home;
    std::vector<std::string> told;

private:
    QByteArray m_saved;
};

TEST_F(StartUp, WithoutArgumentsTheProgramWorksInTheFolderItIsStartedFrom)
{
    EXPECT_EQ(start({"quillet"}), std::filesystem::current_path());
    EXPECT_FALSE(std::filesystem::exists(home.path() / "quillet"));
    EXPECT_TRUE(told.empty());
}

TEST_F(StartUp, TheDesktopEntrysFlagWorksInTheUsersOwnFolder)
{
    EXPECT_EQ(userFolder(), home.path() / "quillet");
    EXPECT_EQ(start({"quillet", "--user-folder"}), home.path() / "quillet");
    EXPECT_TRUE(std::filesystem::exists(home.path() / "quillet" / "quillet.ini"));
    // The test program is not installed, so it has no pictures to copy: said, and started all the same.
    ASSERT_EQ(told.size(), 1u);
    EXPECT_NE(told[0].find("pictures could not be copied"), std::string::npos) << told[0];
}

TEST_F(StartUp, AnInstalledCopyFindsItsPicturesBesideItsBinFolder)
{
    const std::filesystem::path bin = QCoreApplication::applicationDirPath().toStdString();
    EXPECT_EQ(installedPictures(), bin.parent_path() / "share" / "quillet" / "pictures");
}

} // namespace
} // namespace quillet
