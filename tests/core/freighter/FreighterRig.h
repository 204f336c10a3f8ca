#pragma once

#include "FormRig.h"
#include "freighter/DC10F.h"
#include "platform/RecordingCanvas.h"

#include <memory>

namespace quillet {

// The DC-10-30F in the aircraft menu, its aircraft.cfg in the simulator folder.
class FreighterRig : public FormRig {
public:
    explicit FreighterRig(RandomSource* generator = nullptr) : FormRig(generator)
    {
        currentType = "DC-10-30F";
        addAircraft("DC-10-30F", "dc10_30f",
                    "[fltsim.0]\r\ntitle=DC-10\r\n\r\n[WEIGHT_AND_BALANCE]\r\nmax_number_of_stations = 0\r\n"
                    "\r\n[flight_tuning]\r\ncruise_lift_scalar=1.0\r\n");
    }

    // The form opened the way "Adjust" opens it.
    DC10F& open()
    {
        form = std::make_unique<DC10F>(session);
        form->Form_Load();
        return *form;
    }

    RecordingCanvas& picture() { return static_cast<RecordingCanvas&>(form->Picture1()); }

    std::unique_ptr<DC10F> form;
};

} // namespace quillet
