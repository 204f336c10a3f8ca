// A user at the forms: the input decides a sequence of actions across all fourteen types (choosing
// a type, clicks and pointer moves, the answers to input boxes, presets, "Empty Aircraft", reload,
// save) on a program and simulator folder held in memory. After every action the total load is the
// sum of the stations, and every save is either refused with a message or leaves files that read
// back to the load on the form.

#include "FormDriver.h"
#include "FuzzCheck.h"
#include "platform/MemoryFileSystem.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // One driver serves every input, as start-up takes longer than most runs: each starts from the
    // files as made and the program as started.
    static quillet::MemoryFileSystem disk;
    static quillet::ByteChoices choices;
    static quillet::FormDriver driver("/quillet", quillet::Files(disk), choices);
    static const quillet::MemoryFileSystem madeFiles = disk;
    disk = madeFiles;
    driver.restart();
    choices.reset({data, size});
    while (!choices.done() && driver.broken().empty())
        driver.step();
    if (!driver.broken().empty())
        std::fprintf(stderr, "%s\n", driver.broken().c_str());
    QUILLET_FUZZ_CHECK(driver.broken().empty());
    // Nothing of the input stays allocated, so that none looks like a leak to the fuzzer.
    driver.stop();
    disk = quillet::MemoryFileSystem();
    return 0;
}
