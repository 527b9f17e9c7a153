#pragma once

#include <string>

namespace tarvex {

// Today's date for people.
class Clock {
  public:
    virtual ~Clock() = default;

    // The date without a time in the short form of the system, as "5/14/2001". Holds no comma.
    virtual std::string ShortDate() = 0;
};

}  // namespace tarvex
