#pragma once

#include <string>

namespace tarvex {

// What shows documents to the user.
class Browser {
  public:
    virtual ~Browser() = default;

    // Opens a file of that path, which is one of the FileSystem. False where nothing opens it.
    virtual bool Open(const std::string& path) = 0;
};

}  // namespace tarvex
