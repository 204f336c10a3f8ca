// An aircraft.cfg as another program or the user may leave it: the reader buffers it and measures
// its weight and balance section, the writer saves it into a folder held in memory. Whatever the
// bytes, nothing crashes. A file that was read is saved unless its section cannot be replaced cleanly
// or the saved file would hold more lines or bytes than the reader takes back; then it is left as it
// was and the user is told which of these it is. Every line before the section comes back unchanged,
// and saving the saved file again changes nothing.

#include "FuzzCheck.h"
#include "cfgfile/AircraftFile.h"
#include "cfgfile/WeightBlock.h"
#include "cfgfile/inputoutput.h"
#include "core/cfgfile/SmallType.h"
#include "load/Session.h"
#include "platform/MemoryFileSystem.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

const std::string kType = "Beech 1900D";
const std::filesystem::path kRoot = "/quillet";
const std::filesystem::path kCfg = kRoot / "fs2000/aircraft/beech/aircraft.cfg";

// One program folder and load state serve every input, as they serve a user's session; an input
// starts from the simulator folder and the type as set up.
struct Rig {
    quillet::MemoryFileSystem disk;
    quillet::ScriptedPrompt prompt;
    quillet::ScriptedRandom random;
    const quillet::FixedClock clock{quillet::Date{2001, 3, 7}};
    quillet::Session session{prompt, random, clock, kRoot / "program"};

    Rig()
    {
        session.files = quillet::Files(disk);
        session.currentType = [] { return kType; };
        quillet::LoadState& s = session.state;
        s.simfolder = (kRoot / "fs2000").string();
        s.nmenu = 1;
        s.menutype[0] = kType;
        s.menufolder[0] = "beech";
    }

    void start(std::string_view bytes)
    {
        disk = quillet::MemoryFileSystem();
        disk.addFolder(kRoot / "program");
        disk.put(kCfg, bytes);
        quillet::setUpSmallType(session.state);
        session.messages.take();
    }
};

bool told(const quillet::Session& session, std::string_view part)
{
    for (const std::string& message : session.messages.pending()) {
        if (message.find(part) != std::string::npos)
            return true;
    }
    return false;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    static Rig rig;
    rig.start(bytes);
    quillet::MemoryFileSystem& disk = rig.disk;
    quillet::Session& session = rig.session;
    const quillet::FixedClock& clock = rig.clock;
    const auto buffer = quillet::bufferAircraftFile(bytes, quillet::kCfgLineCapacity);
    const bool read = static_cast<bool>(quillet::readcfg(session));
    QUILLET_FUZZ_CHECK(read == static_cast<bool>(buffer));
    if (!read)
        return 0;
    QUILLET_FUZZ_CHECK(disk.get(kCfg.parent_path() / "aircraft.cfg.bak") == std::string(bytes));
    session.state.stationweight[2] = 170;
    session.state.loadweight = 170;
    session.messages.take();

    // What the writer must refuse: a section it cannot replace cleanly, or a saved file too large
    // for the reader.
    const auto& lines = buffer.value().lines;
    const int sectionlines = buffer.value().sectionlines;
    const auto fits = quillet::checkSection(lines, sectionlines, "\"" + kCfg.string() + "\"");
    const auto block = quillet::weightAndBalanceBlock(session.state, kType, clock.today());
    const std::string expected = fits ? quillet::rewriteAircraftFile(lines, sectionlines, block) : "";
    const bool tooManyLines = quillet::countLines(expected) > quillet::kCfgLineCapacity;
    const bool tooLarge = expected.size() > quillet::kMaxFileBytes;

    const bool saved = static_cast<bool>(quillet::writecfg(session));
    QUILLET_FUZZ_CHECK(saved == (fits && !tooManyLines && !tooLarge));
    if (!saved) {
        QUILLET_FUZZ_CHECK(disk.get(kCfg) == std::string(bytes));
        QUILLET_FUZZ_CHECK(
            !fits ? told(session, fits.error().message)
                  : told(session, tooManyLines ? " lines, more than the " : " bytes, more than the "));
        return 0;
    }
    const std::string written = disk.get(kCfg).value_or("");
    QUILLET_FUZZ_CHECK(written == expected);

    std::string kept;
    for (const std::string& line : quillet::splitLines(bytes)) {
        kept += line + "\r\n";
        if (quillet::isSectionHeader(line))
            break;
    }
    QUILLET_FUZZ_CHECK(written.compare(0, kept.size(), kept) == 0);

    // Saving the saved file again changes nothing.
    const auto again = quillet::bufferAircraftFile(written, quillet::kCfgLineCapacity);
    QUILLET_FUZZ_CHECK(again);
    QUILLET_FUZZ_CHECK(again.value().sectionlines > 0);
    QUILLET_FUZZ_CHECK(quillet::rewriteAircraftFile(again.value().lines, again.value().sectionlines, block) ==
                       written);
    return 0;
}
