#include "geometry/text_rules.h"

namespace tarvex {

std::string NumberText(double number) {
    return std::to_string(number);
}

}  // namespace tarvex
