#pragma once

#include <optional>
#include <string>

#include "toolkit/drawing.h"

namespace tarvex {

// What pictures need of the machine: the letters of their words, a place to save them and a file format of
// pixels.
class PictureServices : public TextMeasure {
  public:
    // Asks the user where to save a picture; `name` is proposed, without folder or ending. The path is one of
    // FileSystem, with the ending ".svg" or ".png". Nothing if the user thought better of it. A file that is
    // there already is only returned if the user wants it replaced.
    virtual std::optional<std::string> AskForPlace(const std::string& name) = 0;

    // The drawing in light colours as the bytes of a PNG file, two pixels to a unit. DeviceError (57) where
    // there is no memory for it.
    virtual std::string PngOf(const Drawing& drawing) = 0;
};

}  // namespace tarvex
