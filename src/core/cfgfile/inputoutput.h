#pragma once

#include "load/Session.h"
#include "platform/Result.h"

#include <cstdint>

namespace quillet {

// Far above any real aircraft.cfg or station file; anything larger is not one, and is never written.
inline constexpr std::uintmax_t kMaxFileBytes = 1 << 20;

// The aircraft file interface of the current type (session.currentType()).

// Reads the type's stored load from its station file in the program's folder (creating that file
// from the built-in table the first time), backs the aircraft's aircraft.cfg up once as
// aircraft.cfg.bak and buffers its lines. Either all of it succeeds, or nothing is written, the user
// is told what is wrong with which file, and the buffer is marked unread so that no save can follow.
// Runs session.afterRead() at its end.
Status readcfg(Session& session);

// Rewrites the aircraft's aircraft.cfg with a new weight and balance section (every other line kept
// byte for byte), then the type's station file. Refuses, and tells the user, when the buffer was not
// read for this aircraft.
Status writecfg(Session& session);

} // namespace quillet
