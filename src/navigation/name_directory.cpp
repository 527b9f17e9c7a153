#include "navigation/name_directory.h"

#include <bitset>
#include <cstdint>

#include "geometry/text_rules.h"
#include "navigation/entry_position.h"

namespace tarvex {

namespace {

// Whether a text may be one of some names, by its first two characters: nearly all entries end here.
class Beginnings {
  public:
    void Add(std::string_view name) { set_.set(Index(name)); }
    bool MayBegin(std::string_view identifier) const {
        return identifier.front() == ' ' || set_[Index(identifier)];
    }

  private:
    static std::size_t Index(std::string_view text) {
        const auto first = static_cast<unsigned char>(text[0]);
        const auto second = static_cast<unsigned char>(text.size() > 1 ? text[1] : ' ');
        return first * std::size_t{256} + second;
    }

    std::bitset<std::size_t{256} * 256> set_;
};

}  // namespace

void NameDirectory::Learn(const std::set<std::string_view>& names) {
    std::map<std::string_view, Places*> wanted;
    Beginnings beginnings;
    for (const std::string_view name : names) {
        if (name.empty() || places_.contains(name)) continue;
        const auto place = places_.try_emplace(std::string(name)).first;
        wanted.emplace(place->first, &place->second);
        beginnings.Add(name);
    }
    if (wanted.empty()) return;
    const auto scan = [&](NavigationTable table, std::int32_t last, auto identifierAt) {
        for (std::int32_t index = 0; index <= last; ++index) {
            const std::string_view identifier = identifierAt(static_cast<std::size_t>(index));
            if (!beginnings.MayBegin(identifier)) continue;
            const auto found = wanted.find(Trim(identifier));
            if (found == wanted.end()) continue;
            if (const auto position = PositionOf(EntryAt(tables_, table, index))) {
                found->second->all.push_back(*position);
            }
            found->second->navaid |= table == NavigationTable::Navaids;
        }
    };
    scan(NavigationTable::Fixes, tables_.FixCount,
         [this](std::size_t index) { return tables_.FixTable[index].FixID.View(); });
    scan(NavigationTable::Navaids, tables_.NavaidCount,
         [this](std::size_t index) { return tables_.NavaidTable[index].NavaidID.View(); });
}

const NameDirectory::Places& NameDirectory::Find(std::string_view name) const {
    static const Places none;
    const auto found = places_.find(name);
    return found == places_.end() ? none : found->second;
}

}  // namespace tarvex
