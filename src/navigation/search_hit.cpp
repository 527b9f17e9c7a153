#include "navigation/search_hit.h"

#include <cmath>

#include "geometry/text_rules.h"

namespace tarvex {

namespace {

void Split(double coordinate, std::string& degrees, FixedField<9>& minutes) {
    degrees = WholeDegreesText(std::fabs(coordinate));
    minutes = LeftTrim(SignedNumberText(SplitDegrees(std::fabs(coordinate)).minutes));
}

}  // namespace

std::optional<SearchHit> HitAt(const NavigationTables& tables, NavigationTable table, std::int32_t index) {
    const NavigationEntry entry = EntryAt(tables, table, index);
    if (!IsNumberText(entry.latitude) || !IsNumberText(entry.longitude)) return std::nullopt;
    SearchHit hit;
    hit.table = table;
    hit.SelectedRow = index;
    hit.identifier = Trim(entry.identifier);
    hit.position = {StrictNumber(entry.latitude), StrictNumber(entry.longitude)};
    const auto at = static_cast<std::size_t>(index);
    if (table == NavigationTable::Navaids) hit.frequency = tables.NavaidTable[at].NavaidFreq.Text();
    if (table == NavigationTable::Airports) {
        hit.identifier = entry.identifier;
        hit.elevation = NumberText(tables.AirportTable[at].AirportElevation);
    }
    const double latitude = LeadingNumber(entry.latitude);
    const double longitude = LeadingNumber(entry.longitude);
    Split(latitude, hit.LatDegreesText, hit.LatMinutesText);
    Split(longitude, hit.LongDegreesText, hit.LongMinutesText);
    hit.LatHemisphere = latitude < 0 ? "S" : "N";
    hit.LongHemisphere = longitude < 0 ? "W" : "E";
    return hit;
}

void Remember(const SearchHit& hit, SearchVariables& variables) {
    variables.TransferLatDecimal = hit.position.latitude;
    variables.TransferLongDecimal = hit.position.longitude;
    if (hit.table != NavigationTable::Airports) return;
    variables.TransferID = hit.identifier;
    variables.TransferValue = hit.elevation;
}

bool IsInKilohertz(std::string_view frequency) {
    constexpr double MostMegahertz = 120;
    return LeadingNumber(frequency) > MostMegahertz;
}

std::string FrequencyWithUnit(std::string_view frequency) {
    return std::string(frequency) + (IsInKilohertz(frequency) ? " KHz" : " MHz");
}

}  // namespace tarvex
