#pragma once

#include <cstddef>
#include <deque>
#include <random>
#include <string>
#include <string_view>

#include "support/road.h"

namespace tarvex::testing {

// Chances from a seed, the same on every machine.
class Chance {
  public:
    explicit Chance(std::uint32_t seed) : engine_(seed) {}

    std::size_t Below(std::size_t bound) { return engine_() % bound; }
    bool Percent(std::size_t percent) { return Below(100) < percent; }
    template <class Range>
    const auto& Of(const Range& range) {
        return *(std::begin(range) + static_cast<std::ptrdiff_t>(Below(std::size(range))));
    }

  private:
    std::mt19937 engine_;
};

// A user who does anything that a user can do with the screens that are there. Now and then, so that
// something comes of it, goes by a plan: a whole waypoint, a name and a save, work on a row, a search, an
// ARC, a derived waypoint.
class RandomUser {
  public:
    RandomUser(Road& road, Chance& chance) : road_(road), chance_(chance) {}

    // Does one act, whether it comes to something or not, and gives it as the road writes it.
    std::string Next();
    void ForgetPlan() { plan_.clear(); }

  private:
    std::string Choose();
    std::string ChooseOn(const Control& control);
    std::string ChooseLines(const ListBox& list);
    std::string ChooseIn(const Picture& picture);
    std::string ChooseText(const std::string& before);
    void MakePlan();

    Road& road_;
    Chance& chance_;
    std::deque<std::string> plan_;
};

}  // namespace tarvex::testing
