#include "toolkit/picture.h"

#include <utility>

namespace tarvex {

void Picture::SetDrawing(Drawing drawing) {
    drawing_ = std::move(drawing);
    ++version_;
    Changed();
}

void Picture::SetRoom(Size room) {
    if (room_ == room) return;
    room_ = room;
    Run(OnResize);
}

void Picture::SetTip(std::string tip) {
    if (tip_ == tip) return;
    tip_ = std::move(tip);
    Changed();
}

void Picture::SetSentence(std::string sentence) {
    if (sentence_ == sentence) return;
    sentence_ = std::move(sentence);
    Changed();
}

}  // namespace tarvex
