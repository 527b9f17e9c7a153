#pragma once

#include <sstream>
#include <string>
#include <string_view>

namespace tarvex::testing {

// What is found wrong after an act of the random user.
class Findings {
  public:
    void Require(bool holds, std::string_view what) {
        if (!holds) text_ << what << "; ";
    }
    std::string Text() const { return text_.str(); }
    bool Empty() const { return text_.view().empty(); }

  private:
    std::ostringstream text_;
};

}  // namespace tarvex::testing
