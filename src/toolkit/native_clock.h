#pragma once

#include <memory>

#include "toolkit/clock.h"

namespace tarvex {

// The clock of this machine, in local time. The date has the system's short form: on Windows that of the
// user's settings, elsewhere that of the user's locale, and month/day/year, as "5/14/2001", where the locale
// is that of the C language.
std::unique_ptr<Clock> MakeNativeClock();

}  // namespace tarvex
