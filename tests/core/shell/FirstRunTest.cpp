// The station file each type writes the first time it is read: its built-in table with nobody
// aboard, compared byte for byte with a file under tests/data that was checked by hand against the
// type's published table, through the main window as a user meets it. A new type adds one line to
// kFirstRuns and its file.

#include "Golden.h"
#include "ShellFixture.h"
#include "freighter/FreighterForms.h"
#include "jets/JetForms.h"
#include "regional/RegionalForms.h"

#include <cctype>
#include <gtest/gtest.h>
#include <string>

namespace quillet {
namespace {

struct FirstRun {
    const char* type;   // as the aircraft list shows it
    const char* golden; // under tests/data
};

const FirstRun kFirstRuns[] = {
    {"Beech 1900D", "Beech 1900D.cfg"}, {"Empraer EMB_120", "Empraer EMB_120.cfg"},
    {"DHC-8-300", "DHC-8-300.cfg"},     {"CRJ-200ER", "CRJ-200ER.cfg"},
    {"B737-300", "B737-300.cfg"},       {"B737-200ADV", "B737-200ADV.cfg"},
    {"B757-200", "B757-200.cfg"},       {"B757-200F", "B757-200F.cfg"},
    {"B727-212ADV", "B727-212ADV.cfg"}, {"B767-300ER", "B767-300ER.cfg"},
    {"MD-90-30", "MD-90-30.cfg"},       {"DC-9-30F", "DC-9-30F.cfg"},
    {"DC-8-71F", "DC-8-71F.cfg"},       {"DC-10-30F", "DC-10-30F.cfg"},
};

void registerLoadForms(FormRegistry& forms)
{
    registerRegionalForms(forms);
    registerJetForms(forms);
    registerFreighterForms(forms);
}

class FirstRunStationFile : public ShellFixture, public ::testing::WithParamInterface<FirstRun> {};

TEST_P(FirstRunStationFile, IsTheBuiltInTableWithNobodyAboard)
{
    const std::string type = GetParam().type;
    dir.makeSimulator();
    dir.makeAircraft("plane");
    dir.writeIni(dir.sim(), {type + ",plane"});
    registerLoadForms(forms);

    form1.Form_Load(); // lists the type and reads it: there is no station file yet
    ASSERT_EQ(form1.Combo1.text(), type);
    expectGoldenFile(GetParam().golden, dir.read(type + ".cfg"));
    EXPECT_TRUE(told("station file").empty());
}

std::string testName(const ::testing::TestParamInfo<FirstRun>& info)
{
    std::string name = info.param.type;
    for (char& c : name) {
        if (!std::isalnum(static_cast<unsigned char>(c)))
            c = '_';
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(EveryType, FirstRunStationFile, ::testing::ValuesIn(kFirstRuns), testName);

} // namespace
} // namespace quillet
