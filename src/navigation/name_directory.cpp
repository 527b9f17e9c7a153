#include "navigation/name_directory.h"

#include <bitset>
#include <cstdint>
#include <cstring>

#include "geometry/text_rules.h"
#include "navigation/entry_position.h"

namespace tarvex {

namespace {

constexpr std::size_t IdentifierWidth = 5;

// Tells nearly all identifiers that are none of some names without looking at these.
class Sieve {
  public:
    using Identifier = FixedField<IdentifierWidth>;

    void Add(std::string_view name) {
        const Identifier identifier(name);
        beginnings_.set(Beginning(identifier));
        wholes_.set(Index(identifier));
    }
    bool Holds(const Identifier& identifier) const {
        return identifier.View().front() == ' ' ||
               (beginnings_[Beginning(identifier)] && wholes_[Index(identifier)]);
    }

  private:
    using Set = std::bitset<std::size_t{1} << 16>;

    static std::size_t Beginning(const Identifier& identifier) {
        std::uint16_t characters = 0;
        std::memcpy(&characters, identifier.View().data(), sizeof characters);
        return characters;
    }
    static std::size_t Index(const Identifier& identifier) {
        std::uint64_t characters = 0;
        std::memcpy(&characters, identifier.View().data(), IdentifierWidth);
        return static_cast<std::size_t>(characters * 0x9E3779B97F4A7C15u >> 48);  // spreads them over 16 bits
    }

    Set beginnings_;
    Set wholes_;
};

}  // namespace

void NameDirectory::Learn(const std::set<std::string_view>& names) {
    std::map<std::string_view, Places*> wanted;
    Sieve sieve;
    for (const std::string_view name : names) {
        if (name.empty() || places_.contains(name)) continue;
        const auto place = places_.try_emplace(std::string(name)).first;
        wanted.emplace(place->first, &place->second);
        if (name.size() <= IdentifierWidth) sieve.Add(name);
    }
    if (wanted.empty()) return;
    const auto scan = [&](NavigationTable table, std::int32_t last, auto identifierAt) {
        for (std::int32_t index = 0; index <= last; ++index) {
            const auto& identifier = identifierAt(static_cast<std::size_t>(index));
            if (!sieve.Holds(identifier)) continue;
            const auto found = wanted.find(Trim(identifier));
            if (found == wanted.end()) continue;
            if (const auto position = PositionOf(EntryAt(tables_, table, index))) {
                found->second->all.push_back(*position);
            }
            found->second->navaid |= table == NavigationTable::Navaids;
        }
    };
    scan(
        NavigationTable::Fixes,
        tables_.FixCount, [this](std::size_t index) -> const auto& { return tables_.FixTable[index].FixID; });
    scan(
        NavigationTable::Navaids, tables_.NavaidCount, [this](std::size_t index) -> const auto& {
            return tables_.NavaidTable[index].NavaidID;
        });
}

const NameDirectory::Places& NameDirectory::Find(std::string_view name) const {
    static const Places none;
    const auto found = places_.find(name);
    return found == places_.end() ? none : found->second;
}

}  // namespace tarvex
