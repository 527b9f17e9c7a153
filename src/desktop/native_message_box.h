#pragma once

#include "toolkit/message_box.h"

namespace tarvex {

class Desktop;

// Shows messages as modal dialogs over the window in front. A question that is dismissed without an answer
// counts as answered No.
class NativeMessageBox final : public MessageBox {
  public:
    // Until this is called messages stand alone.
    void StandOver(Desktop& desktop) { desktop_ = &desktop; }
    MessageAnswer Show(const Message& message) override;

  private:
    Desktop* desktop_ = nullptr;
};

}  // namespace tarvex
