#include "Golden.h"

#include "JetRig.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

// The station file a jet type writes on its first run: its built-in table with every weight 0.
void expectFirstStationFile(const std::string& type)
{
    JetRig rig;
    rig.open(type);
    expectGoldenFile(type + ".cfg", rig.dir.read(type + ".cfg"));
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
