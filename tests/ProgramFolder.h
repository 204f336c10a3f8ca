#pragma once

#include "TempDir.h"

#include <string>
#include <vector>

namespace quillet {

// A program folder in a temporary folder, with a simulator folder "sim" inside it.
class ProgramFolder : public TempDir {
public:
    // The simulator folder as the settings file names it.
    std::string sim() const { return (path() / "sim").string(); }

    void makeSimulator(const std::string& name = "fs2000.exe") const { write("sim/" + name, "placeholder"); }
    void makeAircraft(const std::string& folder, const std::string& file = "aircraft.cfg",
                      const std::string& bytes = "[fltsim.0]\r\ntitle=test\r\n") const
    {
        write("sim/aircraft/" + folder + "/" + file, bytes);
    }
    // quillet.ini with the simulator folder and the entries ("B737-300,b737_300").
    void writeIni(const std::string& simfolder, const std::vector<std::string>& entries) const
    {
        std::string text = simfolder + "\r\n" + std::to_string(entries.size()) + "\r\n";
        for (const auto& entry : entries)
            text += entry + "\r\n";
        write("quillet.ini", text);
    }
    std::string ini() const { return read("quillet.ini"); }
};

} // namespace quillet
