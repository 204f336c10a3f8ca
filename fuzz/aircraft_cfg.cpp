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

    // Lets go of what the input made, so that an input frees what it allocates and the fuzzer has no
    // reason to look for leaks after it.
    void finish()
    {
        disk = quillet::MemoryFileSystem();
        session.messages.take();
        session.state.cfgsource = {};
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

// The properties, for one input in the rig.
void check(Rig& rig, std::string_view bytes)
{
    quillet::MemoryFileSystem& disk = rig.disk;
    quillet::Session& session = rig.session;
    if (!quillet::readcfg(session)) {
        QUILLET_FUZZ_CHECK(!quillet::bufferAircraftFile(bytes, quillet::kCfgLineCapacity));
        return;
    }
    QUILLET_FUZZ_CHECK(disk.get(kCfg.parent_path() / "aircraft.cfg.bak") == bytes);
    session.state.stationweight[2] = 170;
    session.state.loadweight = 170;
    session.messages.take();

    // What the writer must refuse: a section it cannot replace cleanly, or a saved file too large
    // for the reader.
    const quillet::TextLines& lines = session.state.cfglines;
    const int sectionlines = session.state.sectionlines;
    const auto fits = quillet::checkSection(lines, sectionlines, kCfg);
    const auto block = quillet::weightAndBalanceBlock(session.state, kType, rig.clock.today());
    const std::string expected = fits ? quillet::rewriteAircraftFile(lines, sectionlines, block) : "";
    const bool tooManyLines = quillet::countLines(expected) > quillet::kCfgLineCapacity;
    const bool tooLarge = expected.size() > quillet::kMaxFileBytes;
    // The file's own lines up to the section's header, which must come back as they were.
    const quillet::TextLines own(bytes);
    std::string kept;
    for (std::size_t i = 0; i < own.size(); ++i) {
        kept.append(own[i]).append("\r\n");
        if (quillet::isSectionHeader(own[i]))
            break;
    }

    const bool saved = static_cast<bool>(quillet::writecfg(session));
    QUILLET_FUZZ_CHECK(saved == (fits && !tooManyLines && !tooLarge));
    if (!saved) {
        QUILLET_FUZZ_CHECK(disk.get(kCfg) == bytes);
        QUILLET_FUZZ_CHECK(
            !fits ? told(session, fits.error().message)
                  : told(session, tooManyLines ? " lines, more than the " : " bytes, more than the "));
        return;
    }
    const std::string written = disk.get(kCfg).value_or("");
    QUILLET_FUZZ_CHECK(written == expected);
    QUILLET_FUZZ_CHECK(written.starts_with(kept));

    // Saving the saved file again changes nothing.
    const auto again = quillet::bufferAircraftFile(written, quillet::kCfgLineCapacity);
    QUILLET_FUZZ_CHECK(again);
    QUILLET_FUZZ_CHECK(again.value().sectionlines > 0);
    QUILLET_FUZZ_CHECK(quillet::rewriteAircraftFile(again.value().lines, again.value().sectionlines, block) ==
                       written);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    static Rig rig;
    rig.start(bytes);
    check(rig, bytes);
    rig.finish();
    return 0;
}
