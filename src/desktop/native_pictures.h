#pragma once

#include "desktop/painter.h"
#include "toolkit/picture_services.h"

namespace tarvex {

class Desktop;

class NativePictures final : public PictureServices {
  public:
    // The windows that dialogs stand over.
    void StandOver(Desktop& desktop) { desktop_ = &desktop; }

    double Width(const std::string& text, double size, bool bold) const override {
        return fonts_.Width(text, size, bold);
    }
    std::optional<std::string> AskForPlace(const std::string& name) override;
    std::string PngOf(const Drawing& drawing) override;

  private:
    PictureFonts fonts_;
    Desktop* desktop_ = nullptr;
};

}  // namespace tarvex
