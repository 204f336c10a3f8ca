// An aircraft.cfg as another program or the user may leave it: the reader buffers it and measures
// its weight and balance section, the writer saves into a folder of its own. Whatever the bytes,
// nothing crashes; a file that was read is saved unless its section cannot be replaced cleanly (and
// then it is left as it was), every line before the section comes back unchanged, and saving the
// saved file again changes nothing.

#include "FuzzCheck.h"
#include "cfgfile/AircraftFile.h"
#include "cfgfile/WeightBlock.h"
#include "cfgfile/inputoutput.h"
#include "core/cfgfile/SmallType.h"
#include "load/Session.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace fs = std::filesystem;

namespace {

const std::string kType = "Beech 1900D";

// One folder for the whole run, removed at its end.
class RunFolder {
public:
    RunFolder()
    {
        std::random_device seed;
        path = fs::temp_directory_path() / ("quillet-fuzz-cfg-" + std::to_string(seed()));
        fs::create_directories(path / "fs2000" / "aircraft" / "beech");
    }
    ~RunFolder()
    {
        std::error_code ec;
        fs::remove_all(path, ec);
    }
    RunFolder(const RunFolder&) = delete;
    RunFolder& operator=(const RunFolder&) = delete;

    fs::path path;
};

const fs::path& folder()
{
    static const RunFolder run;
    return run.path;
}

void writeFile(const fs::path& path, std::string_view bytes)
{
    std::ofstream(path, std::ios::binary | std::ios::trunc)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string readFile(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void setUp(quillet::Session& session)
{
    quillet::LoadState& s = session.state;
    s.simfolder = (folder() / "fs2000").string();
    s.nmenu = 1;
    s.menutype[0] = kType;
    s.menufolder[0] = "beech";
    quillet::setUpSmallType(s);
    session.currentType = [] { return kType; };
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const fs::path cfg = folder() / "fs2000" / "aircraft" / "beech" / "aircraft.cfg";
    writeFile(cfg, bytes);

    quillet::ScriptedPrompt prompt;
    quillet::ScriptedRandom random;
    const quillet::FixedClock clock{quillet::Date{2001, 3, 7}};
    quillet::Session session(prompt, random, clock, folder());
    setUp(session);
    const auto buffer = quillet::bufferAircraftFile(bytes, quillet::kCfgLineCapacity);
    const bool read = static_cast<bool>(quillet::readcfg(session));
    QUILLET_FUZZ_CHECK(read == static_cast<bool>(buffer));
    if (!read)
        return 0;
    session.state.stationweight[2] = 170;
    session.state.loadweight = 170;
    // A file whose section the block cannot replace cleanly is refused, and left as it was.
    const bool fits = static_cast<bool>(
        quillet::checkSection(buffer.value().lines, buffer.value().sectionlines, "aircraft.cfg"));
    QUILLET_FUZZ_CHECK(static_cast<bool>(quillet::writecfg(session)) == fits);
    if (!fits) {
        QUILLET_FUZZ_CHECK(readFile(cfg) == bytes);
        return 0;
    }
    const std::string saved = readFile(cfg);

    std::string kept;
    for (const std::string& line : quillet::splitLines(bytes)) {
        kept += line + "\r\n";
        if (quillet::isSectionHeader(line))
            break;
    }
    QUILLET_FUZZ_CHECK(saved.compare(0, kept.size(), kept) == 0);

    // Saving the saved file again changes nothing (the buffer may be too small for it now).
    const auto again = quillet::bufferAircraftFile(saved, quillet::kCfgLineCapacity);
    if (!again)
        return 0;
    QUILLET_FUZZ_CHECK(again.value().sectionlines > 0);
    const auto block = quillet::weightAndBalanceBlock(session.state, kType, clock.today());
    QUILLET_FUZZ_CHECK(quillet::rewriteAircraftFile(again.value().lines, again.value().sectionlines, block) ==
                       saved);
    return 0;
}
