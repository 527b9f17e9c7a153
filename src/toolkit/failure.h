#pragma once

#include <exception>
#include <string>
#include <utility>

namespace tarvex {

// The numbers under which a failed operation is known.
enum ErrorNumber : int {
    BadArgument = 5,
    Overflow = 6,
    NotANumber = 13,
    FileNotFound = 53,
    DeviceError = 57,
    DiskFull = 61,
    PastEndOfFile = 62,
    PermissionDenied = 70,
    AccessError = 75,
    PathNotFound = 76,
};

// A failed operation. Caught by the operation that expects its number, and by the outermost event.
class Failure : public std::exception {
  public:
    // `reason` is one line for a person: what failed, with the file it concerns where there is one.
    Failure(int number, std::string reason) : number_(number), reason_(std::move(reason)) {}

    int Number() const { return number_; }
    const std::string& Reason() const { return reason_; }
    const char* what() const noexcept override { return reason_.c_str(); }

  private:
    int number_;
    std::string reason_;
};

// Ends the run at once from any depth. Deliberately no std::exception: no handler of failures takes it.
struct ProgramStopped {
    int exitStatus = 0;
    std::string reason;  // one line for a terminal; empty when there is nothing to tell
};

[[noreturn]] inline void StopProgram(int exitStatus, std::string reason = {}) {
    throw ProgramStopped{exitStatus, std::move(reason)};
}

}  // namespace tarvex
