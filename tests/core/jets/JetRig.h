#pragma once

#include "FormRig.h"
#include "jets/Boeing.h"
#include "platform/RecordingCanvas.h"

#include <cctype>
#include <memory>
#include <numeric>
#include <string>

namespace quillet {

// Every jet type in the aircraft menu, each with its aircraft.cfg in a folder named after it
// ("B737-300" in "b737_300").
class JetRig : public FormRig {
public:
    explicit JetRig(RandomSource* generator = nullptr) : FormRig(generator)
    {
        for (const JetType& jet : jetTypes()) {
            const std::string type(jet.type);
            addAircraft(
                type, folderOf(type),
                "[fltsim.0]\r\ntitle=Test\r\n\r\n[WEIGHT_AND_BALANCE]\r\nmax_number_of_stations = 0\r\n");
        }
    }

    static std::string folderOf(std::string type)
    {
        for (char& c : type)
            c = c == '-' ? '_' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        return type;
    }

    // The type's aircraft.cfg as the simulator reads it.
    std::string aircraftCfg(const std::string& type) const
    {
        return dir.read("sim/aircraft/" + folderOf(type) + "/aircraft.cfg");
    }

    // The form opened for a type the way "Adjust" opens it.
    Boeing& open(const std::string& type)
    {
        currentType = type;
        form = std::make_unique<Boeing>(session);
        form->Form_Load();
        return *form;
    }

    RecordingCanvas& picture() { return static_cast<RecordingCanvas&>(form->Picture1()); }

    float sumOfWeights() const
    {
        const auto& weights = session.state.stationweight;
        return std::accumulate(weights.begin(), weights.end(), 0.0f);
    }

    std::unique_ptr<Boeing> form;
};

} // namespace quillet
