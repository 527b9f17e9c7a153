#include "navigation/search.h"

#include <algorithm>
#include <cstring>

#include "geometry/text_rules.h"

namespace tarvex {

namespace {

using FourCharacters = std::uint32_t;

FourCharacters Load(const char* characters) {
    FourCharacters loaded;
    std::memcpy(&loaded, characters, sizeof loaded);
    return loaded;
}

// `matches` is asked only about identifiers that begin like `text` or with a blank, so that the pass over
// all others is two comparisons of numbers.
template <class Record, std::size_t Width, class Match>
std::vector<std::int32_t> Scan(const Record* entries, std::int32_t last,
                               FixedField<Width> Record::*identifier, std::string_view text, Match matches) {
    const FourCharacters wanted = Load(FixedField<4>(text).View().data());
    const auto isCandidate = [=](const Record& entry) {
        const char* const characters = (entry.*identifier).View().data();
        return Load(characters) == wanted || *characters == ' ';
    };
    std::vector<std::int32_t> found;
    const Record* const end = entries + (last + 1);
    for (const Record* at = entries; (at = std::find_if(at, end, isCandidate)) != end; ++at) {
        if (matches((at->*identifier).View())) found.push_back(static_cast<std::int32_t>(at - entries));
    }
    return found;
}

}  // namespace

std::vector<std::int32_t> FindEntries(const NavigationTables& tables, NavigationTable table,
                                      std::string_view text) {
    const auto isTrimmed = [text](std::string_view identifier) { return Trim(identifier) == text; };
    const auto isCode = [text](std::string_view identifier) { return identifier.substr(0, 4) == text; };
    switch (table) {
        case NavigationTable::Fixes:
            return Scan(tables.FixTable.get(), tables.FixCount, &FixRecord::FixID, text, isTrimmed);
        case NavigationTable::Navaids:
            return Scan(tables.NavaidTable.get(), tables.NavaidCount, &NavaidRecord::NavaidID, text,
                        isTrimmed);
        case NavigationTable::Airports:
            return Scan(tables.AirportTable.get(), tables.AirportCount, &AirportRecord::AirportID, text,
                        isCode);
    }
    return {};
}

NavigationEntry EntryAt(const NavigationTables& tables, NavigationTable table, std::int32_t index) {
    switch (table) {
        case NavigationTable::Fixes: {
            const FixRecord& fix = tables.FixTable[static_cast<std::size_t>(index)];
            return {fix.FixID, fix.FixLat, fix.FixLong};
        }
        case NavigationTable::Navaids: {
            const NavaidRecord& navaid = tables.NavaidTable[static_cast<std::size_t>(index)];
            return {navaid.NavaidID, navaid.NavaidLat, navaid.NavaidLong};
        }
        case NavigationTable::Airports: {
            const AirportRecord& airport = tables.AirportTable[static_cast<std::size_t>(index)];
            return {airport.AirportID, airport.AirportLat, airport.AirportLong};
        }
    }
    return {};
}

}  // namespace tarvex
