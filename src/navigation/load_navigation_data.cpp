#include "navigation/load_navigation_data.h"

#include <algorithm>
#include <array>
#include <limits>

#include "geometry/text_rules.h"
#include "toolkit/failure.h"
#include "toolkit/lines.h"

namespace tarvex {

namespace {

// Columns count from 1.
constexpr std::size_t IDColumn = 25;  // in all three files
constexpr std::size_t FixLatColumn = 30;
constexpr std::size_t FixLongColumn = 40;
constexpr std::size_t FixColumns = 50;
constexpr std::size_t NavaidLatColumn = 34;
constexpr std::size_t AirportLatColumn = 40;
constexpr std::size_t AirportLongColumn = 50;
constexpr std::size_t AirportElevationColumn = 71;
constexpr std::size_t AirportElevationWidth = 5;
constexpr std::size_t AirportColumns = 75;
constexpr std::size_t NavaidDecimals = 6;
constexpr char CommentMark = ';';

// The first `Width` columns of a line, a shorter one padded with blanks.
template <std::size_t Width>
class PaddedLine {
  public:
    explicit PaddedLine(std::string_view line) : columns_(line.data()) {
        if (line.size() >= Width) [[likely]]
            return;
        std::fill(std::copy(line.begin(), line.end(), padding_.begin()), padding_.end(), ' ');
        columns_ = padding_.data();
    }

    std::string_view Columns(std::size_t column, std::size_t width) const {
        return {columns_ + column - 1, width};
    }

    template <std::size_t FieldWidth>
    void Copy(std::size_t column, FixedField<FieldWidth>& field) const {
        field.Assign(Columns(column, FieldWidth));
    }

  private:
    const char* columns_;
    std::array<char, Width> padding_;
};

void ReadFix(std::string_view line, FixRecord& fix) {
    const PaddedLine<FixColumns> columns(line);
    columns.Copy(IDColumn, fix.FixID);
    columns.Copy(FixLatColumn, fix.FixLat);
    columns.Copy(FixLongColumn, fix.FixLong);
}

// The column of the last decimal of the number whose point is the first at or after `column`.
std::size_t LastDecimal(std::string_view line, std::size_t column, const char* coordinate) {
    const std::size_t point = line.find('.', column - 1);
    if (point == std::string_view::npos) {
        throw Failure(BadArgument,
                      "no decimal point from column " + std::to_string(column) + " on, in the " + coordinate);
    }
    return point + 1 + NavaidDecimals;
}

// The coordinates have no fixed columns: only their decimals have a fixed width. The frequency ends one
// before the end of the line.
void ReadNavaid(std::string_view line, NavaidRecord& navaid) {
    constexpr std::size_t frequencyWidth = 6;
    const std::size_t latEnd = LastDecimal(line, NavaidLatColumn, "latitude");
    const std::size_t longEnd = LastDecimal(line, latEnd, "longitude");
    navaid.NavaidID.Assign(line.substr(IDColumn - 1));
    navaid.NavaidFreq.Assign(line.substr(line.size() - 1 - frequencyWidth, frequencyWidth));
    navaid.NavaidLat.Assign(line.substr(NavaidLatColumn - 1, latEnd - NavaidLatColumn + 1));
    navaid.NavaidLong.Assign(line.substr(latEnd, longEnd - latEnd));
}

std::int16_t Elevation(std::string_view text) {
    try {
        return WholeNumber16(LeadingNumber(text));
    } catch (const Failure& failure) {
        throw Failure(failure.Number(), "the elevation " + std::string(Trim(text)) + " does not fit 16 bits");
    }
}

void ReadAirport(std::string_view line, AirportRecord& airport) {
    const PaddedLine<AirportColumns> columns(line);
    columns.Copy(IDColumn, airport.AirportID);
    columns.Copy(AirportLatColumn, airport.AirportLat);
    columns.Copy(AirportLongColumn, airport.AirportLong);
    airport.AirportElevation = Elevation(columns.Columns(AirportElevationColumn, AirportElevationWidth));
}

template <auto ReadRecord, class Record>
std::size_t FillTable(FileSystem& files, const std::string& path, Record* table, std::size_t capacity,
                      std::vector<LeftOutEntries>& leftOut) {
    const FileText text = files.Read(path);
    LineCursor lines(text.View());
    std::size_t entries = 0;
    try {
        for (std::string_view line; lines.Next(line);) {
            if (line.starts_with(CommentMark)) continue;
            if (entries < capacity) ReadRecord(line, table[entries]);
            ++entries;
        }
    } catch (const Failure& failure) {
        throw Failure(failure.Number(),
                      path + ", line " + std::to_string(lines.Number()) + ": " + failure.Reason());
    }
    const std::size_t stored = std::min(entries, capacity);
    if (stored < entries) leftOut.push_back({path, entries - stored});
    return stored;
}

template <class Count>
Count LastIndex(std::size_t entries) {
    return static_cast<Count>(static_cast<std::int64_t>(entries) - 1);
}

static_assert(MaxNavaids - 1 <= std::numeric_limits<decltype(NavigationTables::NavaidCount)>::max());

}  // namespace

std::vector<LeftOutEntries> LoadNavigationData(FileSystem& files, const std::string& simulatorPath,
                                               NavigationTables& tables) {
    const auto path = [&simulatorPath](std::size_t file) {
        return simulatorPath + std::string(NavigationFiles[file]);
    };
    tables.FixCount = tables.AirportCount = -1;
    tables.NavaidCount = -1;
    std::vector<LeftOutEntries> leftOut;
    const auto fixes = FillTable<ReadFix>(files, path(0), tables.FixTable.get(), MaxFixes, leftOut);
    const auto navaids = FillTable<ReadNavaid>(files, path(1), tables.NavaidTable.get(), MaxNavaids, leftOut);
    const auto airports =
        FillTable<ReadAirport>(files, path(2), tables.AirportTable.get(), MaxAirports, leftOut);
    tables.FixCount = LastIndex<std::int32_t>(fixes);
    tables.NavaidCount = LastIndex<std::int16_t>(navaids);
    tables.AirportCount = LastIndex<std::int32_t>(airports);
    return leftOut;
}

bool HasNavigationData(FileSystem& files, const std::string& simulatorPath) {
    try {
        return std::all_of(NavigationFiles.begin(), NavigationFiles.end(), [&](std::string_view file) {
            return files.FindFile(simulatorPath + std::string(file)).has_value();
        });
    } catch (const Failure&) {
        return false;
    }
}

}  // namespace tarvex
