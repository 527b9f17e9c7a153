#include "navigation/load_navigation_data.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "geometry/text_rules.h"
#include "toolkit/failure.h"

namespace tarvex {

namespace {

// Columns count from 1.
constexpr std::size_t IDColumn = 25;  // in all three files
constexpr std::size_t FixLatColumn = 30;
constexpr std::size_t FixLongColumn = 40;
constexpr std::size_t NavaidLatColumn = 34;
constexpr std::size_t AirportLatColumn = 40;
constexpr std::size_t AirportLongColumn = 50;
constexpr std::size_t AirportElevationColumn = 71;
constexpr std::size_t AirportElevationWidth = 5;
constexpr std::size_t NavaidDecimals = 6;
constexpr char CommentMark = ';';

// The lines of a text, each ended by CR, CR LF or LF; the last one may lack its end.
class LineCursor {
  public:
    explicit LineCursor(std::string_view text)
        : position_(text.data()),
          end_(text.data() + text.size()),
          nextCR_(FindNext('\r')),
          nextLF_(FindNext('\n')) {}

    bool Next(std::string_view& line) {
        if (position_ == end_) return false;
        // Each mark is looked for only when the last one found is used up: a file with one kind of line end
        // is searched for the other kind once.
        if (nextCR_ < position_) nextCR_ = FindNext('\r');
        if (nextLF_ < position_) nextLF_ = FindNext('\n');
        const char* lineEnd = std::min(nextCR_, nextLF_);
        line = {position_, static_cast<std::size_t>(lineEnd - position_)};
        ++number_;
        position_ = lineEnd;
        if (position_ != end_) ++position_;
        if (lineEnd == nextCR_ && nextLF_ == position_ && position_ != end_) ++position_;
        return true;
    }

    std::size_t Number() const { return number_; }  // of the line taken last, from 1

  private:
    const char* FindNext(char mark) const {
        const auto rest = static_cast<std::size_t>(end_ - position_);
        const void* found = rest == 0 ? nullptr : std::memchr(position_, mark, rest);
        return found == nullptr ? end_ : static_cast<const char*>(found);
    }

    const char* position_;
    const char* end_;
    const char* nextCR_;
    const char* nextLF_;
    std::size_t number_ = 0;
};

// What a line holds from a column on, as far as it goes.
std::string_view Columns(std::string_view line, std::size_t column, std::size_t width) {
    return line.size() < column ? std::string_view() : line.substr(column - 1, width);
}

template <std::size_t Width>
void Take(FixedField<Width>& field, std::string_view line, std::size_t column) {
    if (line.size() >= column - 1 + Width) {
        field.Assign({line.data() + column - 1, Width});  // a constant width copies much faster
    } else {
        field.Assign(Columns(line, column, Width));
    }
}

void ReadFix(std::string_view line, FixRecord& fix) {
    Take(fix.FixID, line, IDColumn);
    Take(fix.FixLat, line, FixLatColumn);
    Take(fix.FixLong, line, FixLongColumn);
}

// The column of the last decimal of the number whose point is the first at or after `column`.
std::size_t LastDecimal(std::string_view line, std::size_t column, const char* coordinate) {
    const std::size_t point = line.find('.', column - 1);
    if (point == std::string_view::npos) {
        throw Failure(BadArgument, std::string("no decimal point in the ") + coordinate);
    }
    return point + 1 + NavaidDecimals;
}

// The coordinates have no fixed columns: only their decimals have a fixed width.
void ReadNavaid(std::string_view line, NavaidRecord& navaid) {
    const std::size_t latEnd = LastDecimal(line, NavaidLatColumn, "latitude");
    const std::size_t longEnd = LastDecimal(line, latEnd, "longitude");
    navaid.NavaidLat.Assign(Columns(line, NavaidLatColumn, latEnd - NavaidLatColumn + 1));
    navaid.NavaidLong.Assign(Columns(line, latEnd + 1, longEnd - latEnd));
    Take(navaid.NavaidFreq, line, line.size() - navaid.NavaidFreq.View().size());
    Take(navaid.NavaidID, line, IDColumn);
}

void ReadAirport(std::string_view line, AirportRecord& airport) {
    Take(airport.AirportID, line, IDColumn);
    Take(airport.AirportLat, line, AirportLatColumn);
    Take(airport.AirportLong, line, AirportLongColumn);
    airport.AirportElevation =
        WholeNumber16(LeadingNumber(Columns(line, AirportElevationColumn, AirportElevationWidth)));
}

template <class Record>
struct Table {
    Record* rows;
    std::size_t capacity;
    void (*readRecord)(std::string_view line, Record& record);
};

// Returns the number of entries stored.
template <class Record>
std::size_t FillTable(FileSystem& files, const std::string& path, Table<Record> table,
                      std::vector<LeftOutEntries>& leftOut) {
    const FileText text = files.Read(path);
    LineCursor lines(text.View());
    std::size_t entries = 0;
    try {
        for (std::string_view line; lines.Next(line);) {
            if (line.starts_with(CommentMark)) continue;
            if (entries < table.capacity) table.readRecord(line, table.rows[entries]);
            ++entries;
        }
    } catch (const Failure& failure) {
        throw Failure(failure.Number(),
                      path + ", line " + std::to_string(lines.Number()) + ": " + failure.Reason());
    }
    const std::size_t stored = std::min(entries, table.capacity);
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
    const std::size_t fixes =
        FillTable<FixRecord>(files, path(0), {tables.FixTable.get(), MaxFixes, ReadFix}, leftOut);
    const std::size_t navaids =
        FillTable<NavaidRecord>(files, path(1), {tables.NavaidTable.get(), MaxNavaids, ReadNavaid}, leftOut);
    const std::size_t airports = FillTable<AirportRecord>(
        files, path(2), {tables.AirportTable.get(), MaxAirports, ReadAirport}, leftOut);
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
