#pragma once

#include "SmallType.h"
#include "load/Session.h"

#include <filesystem>
#include <string>

namespace quillet {

// The aircraft that the kill test's child saves again and again: a small type in a simulator folder
// of its own below `folder`, with a few sections around its weight and balance section.
struct SaveLoopRig {
    explicit SaveLoopRig(const std::filesystem::path& folder)
        : session(prompt, random, clock, folder / "program")
    {
        LoadState& s = session.state;
        s.simfolder = (folder / "fs2000").string();
        s.nmenu = 1;
        s.menutype[0] = "Beech 1900D";
        s.menufolder[0] = "beech";
        session.currentType = [] { return std::string("Beech 1900D"); };
        setUpSmallType(s);
    }

    static std::filesystem::path cfg(const std::filesystem::path& folder)
    {
        return folder / "fs2000/aircraft/beech/aircraft.cfg";
    }
    static std::filesystem::path backup(const std::filesystem::path& folder)
    {
        return folder / "fs2000/aircraft/beech/aircraft.cfg.bak";
    }
    static std::filesystem::path stations(const std::filesystem::path& folder)
    {
        return folder / "program/Beech 1900D.cfg";
    }

    static std::string original()
    {
        std::string text = "[fltsim.0]\r\ntitle=Beech 1900D\r\nsim=beech1900\r\n\r\n[WEIGHT_AND_BALANCE]\r\n";
        for (int i = 0; i < 4; ++i)
            text += "station_load." + std::to_string(i) + " = 0, 0, 0, 0\r\n";
        text += "\r\n[GeneralEngineData]\r\n";
        for (int i = 0; i < 100; ++i)
            text += "// a line of the rest of the file, kept as it is: " + std::to_string(i) + "\r\n";
        return text;
    }

    // One of two loads, so that each save changes both files.
    void load(int round)
    {
        LoadState& s = session.state;
        s.stationweight[0] = 170;
        s.stationweight[2] = round % 2 == 0 ? 189.5f : 0;
        s.stationweight[3] = round % 2 == 0 ? 0 : 1000;
        s.loadweight = s.sumOfWeights();
    }

    ScriptedPrompt prompt;
    ScriptedRandom random;
    FixedClock clock{Date{2001, 3, 7}};
    Session session;
};

} // namespace quillet
