#include "procedure/procedure_reader.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "geometry/text_file.h"
#include "geometry/text_rules.h"
#include "procedure/edited_coordinate.h"
#include "procedure/procedure_format.h"
#include "procedure/procedure_writer.h"
#include "procedure/runway_conversion.h"

namespace tarvex {

namespace {

// The waypoint records of a procedure file, one after the other.
class RecordReader {
  public:
    RecordReader(std::string_view text, const std::string& path) : reader_(text, path), path_(path) {}

    // False at the end of the file. PastEndOfFile (62) when the file ends inside the record.
    bool Next(WaypointItems& items);

    // Whether a comment passed so far ends as those of the older versions do.
    bool OlderVersionSeen() const { return olderVersionSeen_; }

    // A failure's reason: `what` of the record read last.
    std::string Reason(std::string_view what) const {
        return path_ + ", line " + NumberText(static_cast<double>(record_.LineNumber())) + ": " +
               std::string(what);
    }

  private:
    // Whether the first item of what follows opens a record.
    bool Opens(std::string_view first);

    TextReader reader_;
    TextReader record_ = reader_;  // in front of the record read last
    const std::string& path_;
    bool olderVersionSeen_ = false;
};

bool RecordReader::Opens(std::string_view first) {
    if (first.empty()) return false;
    if (first.front() == CommentMark) {
        olderVersionSeen_ |= first.back() >= '0' && first.back() <= '2';
        return false;
    }
    return static_cast<unsigned char>(first.front()) >= FirstMark && first.front() != EndMark;
}

bool RecordReader::Next(WaypointItems& items) {
    while (!reader_.AtEndOfFile()) {
        record_ = reader_;
        items[MarkColumn] = reader_.ReadItem();
        if (!Opens(items[MarkColumn])) continue;
        for (std::size_t column = NameColumn; column < WaypointColumns; ++column) {
            if (reader_.AtEndOfFile()) {
                throw Failure(PastEndOfFile, Reason("the file ends inside this waypoint"));
            }
            items[column] = reader_.ReadItem();
        }
        return true;
    }
    return false;
}

void StoreItems(const WaypointItems& items, WaypointRecord& row) {
    row.WaypointID = items[NameColumn];
    row.WaypointType = items[TypeColumn];
    row.LatDecimal = items[LatitudeColumn];
    row.LongDecimal = items[LongitudeColumn];
    row.Frequency = items[FrequencyColumn];
    row.Airspeed = items[AirspeedColumn];
    row.Altitude2 = items[FirstAltitudeColumn];
    row.Altitude1 = items[SecondAltitudeColumn];
    row.RestrictionType = items[RestrictionColumn];
}

// Takes the two surplus characters off the coordinates of a row whose latitude shows them.
bool CutSurplus(WaypointRecord& row, const RecordReader& reader) {
    if (IsNumberText(row.LatDecimal) || IsLonePoint(row.LatDecimal)) return false;
    for (std::string* decimal : {&row.LatDecimal, &row.LongDecimal}) {
        if (decimal->size() < 2) {
            throw Failure(BadArgument, reader.Reason("the waypoint's position is no number"));
        }
        decimal->resize(decimal->size() - 2);
    }
    return true;
}

void SplitCoordinate(const std::string& decimal, std::string& degrees, std::string& minutes,
                     const RecordReader& reader) {
    const double value = std::abs(LeadingNumber(decimal));
    if (!std::isfinite(value)) throw Failure(Overflow, reader.Reason("the waypoint's position is too large"));
    degrees = WholeDegreesText(value);
    minutes = LeftTrim(SignedNumberText(RoundEven((value - Fix(value)) * 60, 6)));
}

struct FirstPass {
    std::vector<WaypointRecord> rows;
    bool rewriteNeeded = false;
    bool convertNeeded = false;
};

FirstPass ReadRows(std::string_view text, const std::string& path) {
    FirstPass pass;
    RecordReader reader(text, path);
    WaypointItems items;
    while (reader.Next(items)) {
        if (pass.rows.size() == MaxWaypoints) {
            throw Failure(Overflow, reader.Reason("more than " + NumberText(MaxWaypoints) + " waypoints"));
        }
        WaypointRecord& row = pass.rows.emplace_back();
        StoreItems(items, row);
        if (!items[ClosingColumn].empty()) {
            throw ProcedureDataError(BadArgument, reader.Reason("the waypoint has lost or surplus items"));
        }
        if (CutSurplus(row, reader)) pass.rewriteNeeded = true;
        SplitCoordinate(row.LatDecimal, row.LatDegrees, row.LatMinutes, reader);
        SplitCoordinate(row.LongDecimal, row.LongDegrees, row.LongMinutes, reader);
    }
    pass.convertNeeded = reader.OlderVersionSeen();
    return pass;
}

// The second pass. `text` holds the same records as `rows`; degrees and minutes stay as they are.
void ConvertRows(std::string_view text, const std::string& path, const NavigationTables& navigation,
                 std::vector<WaypointRecord>& rows) {
    RecordReader reader(text, path);
    WaypointItems items;
    for (auto& row : rows) {
        reader.Next(items);
        StoreItems(items, row);
        ConvertRunway(row, navigation);
    }
}

}  // namespace

std::int32_t ReadProcedureFile(FileSystem& files, const ProcedureVariables& procedure,
                               std::string_view version, const NavigationTables& navigation,
                               ProcedureRows& rows) {
    const std::string path = procedure.ProcedureFolder + procedure.ProcedureFileName;
    const FileText file = files.Read(path);
    FirstPass pass = ReadRows(file.View(), path);

    const bool convertNeeded = procedure.ProcedureMode == "I" && pass.convertNeeded;
    if (convertNeeded && pass.rewriteNeeded) {
        // The conversion reads the mended file.
        const std::string mended = RewrittenProcedure(path, pass.rows, version);
        ConvertRows(mended, path, navigation, pass.rows);
    } else if (convertNeeded) {
        ConvertRows(file.View(), path, navigation, pass.rows);
    }
    if (convertNeeded || pass.rewriteNeeded) {
        WriteProcedureFile(files, path, pass.rows, version, file.View());
    }

    rows.Assign(pass.rows);
    return rows.Count();
}

}  // namespace tarvex
