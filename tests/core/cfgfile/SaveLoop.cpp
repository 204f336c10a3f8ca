// The kill test's child: reads one aircraft, then saves it with two loads in turn until it is killed.
// Usage: quillet_save_loop <folder>

#include "SaveLoopRig.h"
#include "cfgfile/inputoutput.h"

#include <iostream>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: quillet_save_loop <folder>\n";
        return 2;
    }
    quillet::SaveLoopRig rig{argv[1]};
    bool ok = static_cast<bool>(quillet::readcfg(rig.session));
    for (int round = 0; ok; ++round) {
        rig.load(round);
        ok = static_cast<bool>(quillet::writecfg(rig.session));
    }
    for (const std::string& message : rig.session.messages.take())
        std::cerr << message << '\n';
    return 1;
}
