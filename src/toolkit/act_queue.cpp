#include "toolkit/act_queue.h"

namespace tarvex {

namespace {

bool MadeAnywayBy(const NativeAct& move, const NativeAct& next) {
    if (next.form != move.form || next.control == nullptr || next.kind == NativeAct::Kind::Look) return false;
    switch (move.kind) {
        case NativeAct::Kind::Activate:
            return true;
        case NativeAct::Kind::Arrive:
            return next.control == move.control;
        case NativeAct::Kind::Look:
        case NativeAct::Kind::Act:
            break;
    }
    return false;
}

}  // namespace

std::optional<NativeAct> ActQueue::Next() {
    if (acts_.empty()) return std::nullopt;
    while (acts_.size() > 1 && MadeAnywayBy(acts_[0], acts_[1])) acts_.pop_front();
    NativeAct act = std::move(acts_.front());
    acts_.pop_front();
    return act;
}

void ActQueue::Forget(const Form& form) {
    std::erase_if(acts_, [&form](const NativeAct& act) { return act.form == &form; });
}

}  // namespace tarvex
