#include "JetRig.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>

namespace quillet {
namespace {

// The station file a jet type writes on its first run: its built-in table with every weight 0,
// compared byte for byte with a file checked once by hand against the type's published table.
void expectFirstStationFile(const std::string& type)
{
    JetRig rig;
    rig.open(type);
    const std::string written = rig.dir.read(type + ".cfg");
    const auto goldenFile = std::filesystem::path(QUILLET_TEST_DATA) / (type + ".cfg");
    // A new type's file is written once this way, then checked by hand before it is committed.
    if (std::getenv("QUILLET_WRITE_GOLDEN"))
        std::ofstream(goldenFile, std::ios::binary) << written;
    const std::string golden = TempDir::readFile(goldenFile);
    ASSERT_FALSE(golden.empty()) << "no golden file for " << type;
    EXPECT_EQ(written, golden) << type;
}

TEST(JetGoldenStationFiles, B737_300)
{
    expectFirstStationFile("B737-300");
}

TEST(JetGoldenStationFiles, B737_200ADV)
{
    expectFirstStationFile("B737-200ADV");
}

TEST(JetGoldenStationFiles, B757_200)
{
    expectFirstStationFile("B757-200");
}

TEST(JetGoldenStationFiles, B757_200F)
{
    expectFirstStationFile("B757-200F");
}

TEST(JetGoldenStationFiles, B727_212ADV)
{
    expectFirstStationFile("B727-212ADV");
}

TEST(JetGoldenStationFiles, B767_300ER)
{
    expectFirstStationFile("B767-300ER");
}

TEST(JetGoldenStationFiles, MD90_30)
{
    expectFirstStationFile("MD-90-30");
}

TEST(JetGoldenStationFiles, DC9_30F)
{
    expectFirstStationFile("DC-9-30F");
}

TEST(JetGoldenStationFiles, DC8_71F)
{
    expectFirstStationFile("DC-8-71F");
}

} // namespace
} // namespace quillet
