#include "inputoutput.h"

#include "AircraftFile.h"
#include "StationFile.h"
#include "WeightBlock.h"
#include "platform/Files.h"
#include "platform/Paths.h"

#include <optional>

namespace fs = std::filesystem;

namespace quillet {

namespace {

Result<fs::path> aircraftFile(const Session& session, const std::string& type)
{
    if (type.empty())
        return Error{"No aircraft type is selected."};
    const std::string* folder = session.state.folderOf(type);
    if (!folder)
        return Error{"The aircraft menu has no entry for \"" + type + "\", so its aircraft.cfg is unknown."};
    // Anything but one folder name would lead out of the simulator's aircraft folder.
    if (!isSingleName(*folder)) {
        return Error{"The aircraft folder \"" + *folder + "\" of \"" + type +
                     "\" is not a single folder name inside the simulator's aircraft folder."};
    }
    return resolvePath(session.state.simfolder + "\\aircraft\\" + *folder + "\\aircraft.cfg",
                       session.programFolder, session.files.system());
}

fs::path stationFile(const Session& session, const std::string& type)
{
    return resolvePath(type + ".cfg", session.programFolder, session.files.system());
}

void fillBuffer(LoadState& state, AircraftLines&& buffer)
{
    state.cfgcount = static_cast<int>(buffer.lines.size());
    state.cfglines = std::move(buffer.lines);
    state.sectionlines = buffer.sectionlines;
}

// Everything of readcfg that can fail. Nothing in the state beyond the cleared weights and buffer
// changes, and nothing is written, until every check has passed.
Status readFiles(Session& session, const std::string& type)
{
    // Made only for a message: a read that succeeds needs none of it.
    const auto notRead = [&] {
        return " The load of \"" + type +
               "\" was not read, and nothing will be saved for it until it is read successfully.";
    };
    auto found = aircraftFile(session, type);
    if (!found)
        return Error{found.error().message + notRead()};
    const fs::path cfgPath = found.value();
    auto read = session.files.read(cfgPath, kMaxFileBytes);
    if (!read)
        return Error{read.error().message + notRead()};
    std::string bytes = std::move(read).value();
    auto buffer = bufferAircraftFile(bytes, kCfgLineCapacity);
    if (!buffer)
        return Error{quotedPath(cfgPath) + " " + buffer.error().message + "." + notRead()};

    const fs::path stationPath = stationFile(session, type);
    std::optional<LoadSnapshot> stored;
    if (session.files.exists(stationPath)) {
        auto text = session.files.read(stationPath, kMaxFileBytes);
        if (!text)
            return Error{text.error().message + notRead()};
        if (const auto notText = whyNotText(text.value()))
            return Error{"The station file " + quotedPath(stationPath) + " " + *notText + "." + notRead()};
        auto parsed = readStationFile(text.value());
        if (!parsed) {
            return Error{"The station file " + quotedPath(stationPath) +
                         " cannot be used: " + parsed.error().message + "." + notRead() +
                         " Correct the file, or delete it to start again from the built-in table."};
        }
        stored = std::move(parsed).value();
    }

    // The backup keeps the file as it was before this program first changed it, so one that cannot be
    // made stops every later save.
    const fs::path backup = cfgPath.parent_path() / "aircraft.cfg.bak";
    if (auto copied = session.files.createIfAbsent(backup, bytes); !copied) {
        return Error{"The one-time backup of " + quotedPath(cfgPath) +
                     " could not be made: " + copied.error().message +
                     " Quillet keeps the aircraft's original file there before it "
                     "changes anything." +
                     notRead()};
    }

    LoadState& state = session.state;
    if (stored) {
        stored->restoreInto(state);
    } else if (auto created = session.files.replace(stationPath, stationFileText(state)); !created) {
        session.messages.report("The station file could not be created: " + created.error().message +
                                " The built-in table of \"" + type +
                                "\" is used, and the next save writes the file.");
    }
    state.loadweight = state.sumOfWeights();
    fillBuffer(state, std::move(buffer).value());
    state.cfgsource = CfgSource{true, type, cfgPath, std::move(bytes)};
    return success();
}

void clearBuffer(LoadState& state)
{
    state.cfglines.clear();
    state.cfgcount = 0;
    state.sectionlines = 0;
    state.cfgsource = CfgSource{};
}

// Everything of writecfg that can fail, aircraft.cfg first.
Status writeFiles(Session& session)
{
    LoadState& state = session.state;
    const std::string type = session.currentType();
    auto found = aircraftFile(session, type);
    if (!found)
        return Error{"Nothing was saved. " + found.error().message};
    const fs::path cfgPath = found.value();
    CfgSource& source = state.cfgsource;
    if (!source.valid || source.type != type || source.file != cfgPath) {
        return Error{"Nothing was saved: " + quotedPath(cfgPath) + " has not been read successfully for \"" +
                     type + "\". Re-load the configuration, then save again."};
    }

    // Another program (or the simulator) may have changed the file since it was read: its lines are
    // taken again, so that only the weight and balance section is ours.
    auto onDisk = session.files.read(cfgPath, kMaxFileBytes);
    if (!onDisk)
        return Error{"Nothing was saved: " + onDisk.error().message};
    if (onDisk.value() != source.bytes) {
        auto buffer = bufferAircraftFile(onDisk.value(), kCfgLineCapacity);
        if (!buffer) {
            return Error{"Nothing was saved: " + quotedPath(cfgPath) +
                         " was changed by another program and now " + buffer.error().message + "."};
        }
        fillBuffer(state, std::move(buffer).value());
        source.bytes = std::move(onDisk).value();
        session.messages.report(quotedPath(cfgPath) +
                                " was changed by another program since it was read; its changes outside the "
                                "weight and balance section are kept.");
    }

    const TextLines& lines = state.cfglines;
    if (auto fits = checkSection(lines, state.sectionlines, cfgPath); !fits)
        return Error{"Nothing was saved: " + fits.error().message};
    const auto block = weightAndBalanceBlock(state, type, session.clock.today());
    std::string text = rewriteAircraftFile(lines, state.sectionlines, block);

    // A file the reader would refuse locks the user out of the aircraft, so it is never written.
    const auto grown = [&] {
        return "Nothing was saved: with the new weight and balance section " + quotedPath(cfgPath);
    };
    const auto savedLines = countLines(text);
    if (savedLines > static_cast<std::size_t>(kCfgLineCapacity)) {
        return Error{grown() + " would have " + std::to_string(savedLines) + " lines, more than the " +
                     std::to_string(kCfgLineCapacity) +
                     " this program can read back. Remove some lines outside that section (comments, for "
                     "instance), then save again."};
    }
    if (text.size() > kMaxFileBytes) {
        return Error{grown() + " would be " + std::to_string(text.size()) + " bytes, more than the " +
                     std::to_string(kMaxFileBytes) + " this program can read back."};
    }

    // Nor is a station file the reader would refuse (a weight typed below 0 or above the take-off
    // weight): it would lock the user out of the type's load the same way.
    const std::string stations = stationFileText(state);
    if (auto back = readStationFile(stations); !back) {
        return Error{"Nothing was saved: the station file " + quotedPath(stationFile(session, type)) +
                     " would not read back: " + back.error().message +
                     ". Change that station's load, then save again."};
    }

    // Both files are written out before either replaces its old one, so that a save does not stop
    // half-way for a reason that could be known beforehand; both are renamed before their folders are
    // flushed, so that the simulator's file and ours change as close together as the system allows.
    auto newCfg = session.files.prepare(cfgPath, text);
    if (!newCfg)
        return Error{"Nothing was saved: " + newCfg.error().message};
    auto newStations = session.files.prepare(stationFile(session, type), stations);
    if (!newStations)
        return Error{"Nothing was saved: " + newStations.error().message};
    if (auto renamed = session.files.rename(newCfg.value()); !renamed)
        return Error{"Nothing was saved: " + renamed.error().message};
    source.bytes = std::move(text);
    const Status stationsRenamed = session.files.rename(newStations.value());
    session.files.finish({&newCfg.value(), &newStations.value()});
    if (!stationsRenamed) {
        return Error{quotedPath(cfgPath) +
                     " was saved: the simulator now flies the new load. But the station file "
                     "was not: " +
                     stationsRenamed.error().message + " The load Quillet keeps for \"" + type +
                     "\" is still the previous one; save again to store the new one."};
    }
    return success();
}

} // namespace

Status readcfg(Session& session)
{
    LoadState& state = session.state;
    // A failed read leaves the type as its set-up made it, empty, and with nothing that a save could
    // write.
    state.stationweight.fill(0);
    clearBuffer(state);
    Status status = readFiles(session, session.currentType());
    if (!status)
        session.messages.report(status.error().message);
    state.loadweight = state.sumOfWeights();
    session.afterRead();
    return status;
}

Status writecfg(Session& session)
{
    Status status = writeFiles(session);
    if (!status)
        session.messages.report(status.error().message);
    return status;
}

} // namespace quillet
