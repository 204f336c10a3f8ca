// A long afternoon at the program: seeded random user actions across all fourteen types, with saves
// into a real simulator folder. The total on every form stays the sum of its stations throughout, and
// every file written reads back at the end.

#include "FormDriver.h"
#include "TempDir.h"

#include <gtest/gtest.h>
#include <iostream>

namespace quillet {
namespace {

constexpr int kActions = 100000;
constexpr std::uint32_t kSeed = 20010307;

TEST(Soak, HundredThousandActionsKeepTheLoadAndTheFiles)
{
    TempDir dir;
    SeededChoices choices(kSeed);
    FormDriver driver(dir.path(), Files(), choices);
    for (int action = 0; action < kActions && driver.broken().empty(); ++action)
        driver.step();
    ASSERT_EQ(driver.broken(), "");
    driver.readEveryType();
    EXPECT_EQ(driver.broken(), "");
    EXPECT_GT(driver.saves() - driver.refusedSaves(), 1000) << "the run should save often";
    std::cout << driver.saves() << " saves, " << driver.refusedSaves() << " refused\n";
}

} // namespace
} // namespace quillet
