#pragma once

#include <string>

namespace tarvex {

// The clipboard of the machine. Texts are in UTF-8.
class Clipboard {
  public:
    virtual ~Clipboard() = default;

    virtual void Copy(const std::string& text) = 0;
    // Empty where it holds no text.
    virtual std::string Text() = 0;
};

}  // namespace tarvex
