// The station file each type writes the first time it is read: its built-in table with nobody
// aboard, compared byte for byte with a file under tests/data that was checked by hand against the
// type's published table, through the main window as a user meets it. A new type adds one line to
// kFirstRuns and its file; a new form also its maker to registerLoadForms. The jet and freighter
// tests compare their types' files with the same helper from their own rigs.

#include "Golden.h"
#include "ShellFixture.h"
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
    {"Beech 1900D", "Beech 1900D.cfg"},
    {"Empraer EMB_120", "Empraer EMB_120.cfg"},
    {"DHC-8-300", "DHC-8-300.cfg"},
};

// The forms of the types above.
void registerLoadForms(FormRegistry& forms)
{
    registerRegionalForms(forms);
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
