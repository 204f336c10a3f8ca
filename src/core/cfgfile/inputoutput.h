#pragma once

#include "load/Session.h"
#include "platform/Result.h"

namespace quillet {

// The aircraft file interface of the current type (session.currentType()).

// Reads the type's stored load from its station file in the program's folder (creating that file
// from the built-in table the first time), backs the aircraft's aircraft.cfg up once as
// aircraft.cfg.bak and buffers its lines. Either all of it succeeds, or nothing is written, the user
// is told what is wrong with which file, and the buffer is marked unread so that no save can follow.
// Runs session.afterRead() at its end.
Status readcfg(Session& session);

// Rewrites the aircraft's aircraft.cfg with a new weight and balance section (every other line kept
// byte for byte), then the type's station file. Refuses, and tells the user, when the buffer was not
// read for this aircraft or the station file would not read back (a weight below 0 or above the
// take-off weight).
Status writecfg(Session& session);

} // namespace quillet
