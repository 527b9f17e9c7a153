#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "geometry/position.h"
#include "navigation/navigation_tables.h"

namespace tarvex {

// Where the fixes and navaids of some names are. It learns names as they come up: all that are new take one
// pass over the tables together.
class NameDirectory {
  public:
    // The tables must outlive it and stay as they are.
    explicit NameDirectory(const NavigationTables& tables) : tables_(tables) {}

    struct Places {
        std::vector<Position>
            all;  // in the order of the tables, fixes first; entries without a position are left out
        bool navaid = false;  // one of the entries is a navaid
    };

    void Learn(const std::set<std::string_view>& names);
    // Of a name that was learned, without the blanks at its ends; nothing for any other.
    const Places& Find(std::string_view name) const;

  private:
    const NavigationTables& tables_;
    std::map<std::string, Places, std::less<>> places_;
};

}  // namespace tarvex
