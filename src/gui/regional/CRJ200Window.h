#pragma once

#include "RegionalLoadWindow.h"

namespace quillet {

class Application;
class CRJ200;

// The window of the CRJ-200ER's load form: the seat map, which passes every press and movement of
// the mouse to the form, and around it what every regional window shows.
class CRJ200Window : public RegionalLoadWindow {
    Q_OBJECT
public:
    CRJ200Window(CRJ200& form, Application& app);
};

} // namespace quillet
